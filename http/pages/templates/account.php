<?php
$strengths = array();
foreach ($GLOBALS['password_strengths'] as $characters => $word) {
    $strengths[] = $characters . ' ' . $word;
}
$about_strength = 'data-strengths="' . h(implode(', ', $strengths)) . '"';
$rules = 'At least ' . SHORTEST_PASSWORD . ' characters. Length counts most: several words that have nothing to do with one'
    . ' another are better than one with signs in it.';
$own = $change == 'own' ? $errors : array();
$other = $change == 'other' ? $errors : array();
?>
<section class="card" aria-labelledby="own">
  <h2 id="own">Your password</h2>
<?php
echo own_form_begin('account.php', 'own'), user_name_field($GLOBALS['session']->user);
echo password_field('old_password', 'Old password', $own, 'current-password');
echo password_field('new_password', 'New password', $own, 'new-password', $rules, $about_strength);
echo password_field('password_again', 'New password again', $own, 'new-password');
?>
<p class="note">Wherever else you are signed in, you are signed out there.</p>
<?php echo own_form_end('Change password'); ?>
</section>

<section class="card" aria-labelledby="sessions">
  <h2 id="sessions">Your sessions</h2>
  <p class="hint">A session ends after <?php echo (int) (IDLE_SECONDS / 60); ?> minutes without activity, and
    <?php echo (int) (LONGEST_SECONDS / 3600); ?> hours after its sign-in. Two minutes before that you are warned, where the
    browser runs scripts.</p>
  <table class="stacks">
    <thead><tr><th scope="col">Signed in (UTC)</th><th scope="col">From</th><th scope="col">Last activity (UTC)</th></tr></thead>
    <tbody>
<?php foreach ($sessions as $id => $facts) { ?>
    <tr>
      <th scope="row" class="time"><?php echo h(gmdate('Y-m-d H:i:s', $facts['signed_in'])); ?></th>
      <td data-label="From"><div><?php echo h($facts['client']); ?><?php
        if ((string) $id === session_id()) echo ' ', state('good', 'This session'); ?></div></td>
      <td data-label="Last activity"><?php echo h(gmdate('Y-m-d H:i:s', $facts['seen'])); ?></td>
    </tr>
<?php } ?>
    </tbody>
  </table>
<?php echo own_form_begin('account.php', 'sessions'); ?>
<p class="note">Signing out everywhere ends all of them, this one too. Is one of them not yours? Then change your password first.</p>
<?php echo own_form_end('Sign out everywhere', 'danger'); ?>
</section>
<?php if ($others) { ?>

<section class="card" aria-labelledby="others">
  <h2 id="others">Passwords of the other accounts</h2>
<?php echo own_form_begin('account.php', 'other'); ?>
<div class="field"><label for="name">Account</label><select name="name" id="name">
<?php foreach ($others as $name) { ?>
  <option<?php if (posted('name') === $name) echo ' selected'; ?>><?php echo h($name); ?></option>
<?php } ?>
</select></div>
<?php
echo password_field('other_password', 'New password', $other, 'new-password', $rules, $about_strength);
echo password_field('other_password_again', 'New password again', $other, 'new-password');
echo password_field('own_password', 'Your own password', $other, 'current-password', 'To be sure that it is you.');
?>
<p class="note">All sessions of that account end. Tell its owner the password in person.</p>
<?php echo own_form_end('Set password'); ?>
</section>
<?php } ?>
