<p class="lead">Sign in to see and change its network settings.</p>
<div role="status">
<?php if ($error != '') echo message('bad', '<p>' . h($error) . '</p>'); ?>
<?php if ($error == '' && $notice != '') echo message('note', '<p>' . h($notice) . '</p>'); ?>
<?php if (!$accounts) echo message('bad', '<p>There are no accounts yet. The appliance makes them, and prints their'
    . ' passwords, when it starts.</p>'); ?>
</div>
<form method="post" action="signin.php">
  <input type="hidden" name="token" value="<?php echo h($token); ?>">
  <input type="hidden" name="next" value="<?php echo h($next); ?>">
<?php if ($typed != '') { ?>
  <input type="hidden" name="typed" value="<?php echo h($typed); ?>">
  <input type="hidden" name="proof" value="<?php echo h($proof); ?>">
<?php } ?>
  <div class="field">
    <label for="user">Name</label>
    <input type="text" id="user" name="user" value="<?php echo h($user); ?>" autocomplete="username"
      autocapitalize="none" spellcheck="false" required<?php if ($user == '') echo ' autofocus'; ?>>
  </div>
  <div class="field">
    <label for="password">Password</label>
    <input type="password" id="password" name="password" autocomplete="current-password" required<?php
      if ($user != '') echo ' autofocus'; ?>>
  </div>
  <p class="actions"><button type="submit" class="primary">Sign in</button></p>
</form>
