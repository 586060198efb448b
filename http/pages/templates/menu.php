<nav aria-label="Settings">
  <ul>
<?php foreach ($GLOBALS['pages'] as $page => $title) { ?>
    <li><a href="<?php echo h($page); ?>"<?php if ($page == $current) echo ' aria-current="page"'; ?>><?php
      echo icon($page), h($title); ?></a></li>
<?php } ?>
  </ul>
</nav>
<div class="account">
  <p><?php echo h($GLOBALS['session']->user); ?> <span class="role"><?php
    echo may_change($GLOBALS['session']) ? 'may change settings' : 'read only'; ?></span></p>
  <noscript><p class="hint">You are signed out after <?php echo (int) (IDLE_SECONDS / 60); ?> minutes without activity. What you type
    is in the form again when you have signed in.</p></noscript>
  <form method="post" action="signout.php"><?php echo token_field(); ?>
    <button type="submit" class="quiet"><?php echo icon('sign-out'); ?>Sign out</button></form>
</div>
