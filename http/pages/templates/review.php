<section class="card" aria-label="Before it is applied">
<?php foreach ($warnings as $warning) echo message('caution', '<p>' . h($warning) . '</p>'); ?>
<table class="stacks">
  <thead><tr><th scope="col">Setting</th><th scope="col">Now</th><th scope="col">New</th></tr></thead>
  <tbody>
<?php foreach ($rows as $row) { ?>
  <tr>
    <th scope="row"><?php echo h($row['label']); ?></th>
    <td data-label="Now"><?php echo h($row['now']); ?></td>
    <td data-label="New"><?php echo h($row['wanted']); ?></td>
  </tr>
<?php } ?>
  </tbody>
</table>
<p><?php $seconds = chosen_seconds();
  echo $seconds == 0 ? 'Apply puts the new settings into force at once, without a trial: nothing brings those of before back.'
    : 'Apply puts the new settings on trial for ' . h($GLOBALS['times_of_trial'][(string) $seconds]) . ': you see how it goes, and'
    . ' unless you are back under them in this time, those of before come back by themselves.'; ?></p>
<form method="post" action="<?php echo h($page); ?>"><?php echo token_field(); ?>
<?php foreach ($typed as $name => $value) { ?>
  <input type="hidden" name="<?php echo h($name); ?>" value="<?php echo h($value); ?>">
<?php } ?>
  <p class="actions"><button type="submit" name="reviewed" value="yes" class="primary">Apply</button>
    <button type="submit" name="reviewed" value="back">Back</button></p>
</form>
</section>
