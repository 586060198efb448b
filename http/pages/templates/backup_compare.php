<?php
$at_once = array();
$on_trial = array();
foreach ($compared['rows'] as $section => $rows) {
    if (isset($GLOBALS['parts_on_trial'][$section])) {
        $on_trial[$section] = $rows;
    } else {
        $at_once[$section] = $rows;
    }
}
$carried = array();
foreach ($at_once + $on_trial as $section => $rows) {
    $carried[$section] = $file['parts'][$section];
}
?>
<?php if ($results) { ?>
<section class="card" aria-labelledby="results">
  <h2 id="results">What came of it</h2>
  <dl class="results">
<?php foreach ($results as $section => $result) { ?>
    <dt><?php echo h($GLOBALS['backup_parts'][$section]['title']); ?></dt><dd><?php echo state($result[0], $result[1]); ?></dd>
<?php } ?>
  </dl>
</section>
<?php } ?>
<section class="card" aria-label="The file">
<dl>
<?php if (isset($file['about']['host'])) { ?>
  <dt>From</dt><dd><?php echo h($file['about']['host']); ?></dd>
<?php } ?>
<?php if (isset($file['about']['taken'])) { ?>
  <dt>Taken</dt><dd><?php echo h($file['about']['taken']); ?></dd>
<?php } ?>
  <dt>Differs</dt><dd><?php echo $compared['rows'] ? h(titles_of_parts(array_keys($compared['rows']))) : 'Nothing'; ?></dd>
<?php if ($compared['same']) { ?>
  <dt>The same</dt><dd><?php echo h(titles_of_parts($compared['same'])); ?></dd>
<?php } ?>
<?php if ($compared['unknown']) { ?>
  <dt>Unknown now</dt><dd><?php echo h(titles_of_parts($compared['unknown'])); ?>: cannot be compared, so it stays as it is</dd>
<?php } ?>
<?php if ($compared['left_out'] && !$results) { ?>
  <dt>Not in it</dt><dd><?php echo h(titles_of_parts($compared['left_out'])); ?>: stays as it is</dd>
<?php } ?>
</dl>
<?php if (!$at_once) { ?>
<p class="actions"><a class="button" href="backup.php">Back to the backup</a></p>
<?php } ?>
</section>
<?php if ($at_once) { ?>
<section class="card" aria-labelledby="at-once">
<h2 id="at-once">To be applied at once</h2>
<form method="post" action="backup.php"><?php echo token_field(), seen_field($sums); ?>
  <input type="hidden" name="change" value="apply">
  <input type="hidden" name="file" value="<?php echo h(write_backup($file['about'], $carried)); ?>">
  <fieldset class="form parts"<?php echo described_by('parts', '', isset($errors['parts']) ? $errors['parts'] : ''); ?>>
  <legend>What is to be as in the file</legend>
<?php foreach ($at_once as $section => $rows) { ?>
  <div class="part">
    <?php echo mark_field('checkbox', 'part_' . $section, 'part-' . $section, '1', $GLOBALS['backup_parts'][$section]['title'], '',
        false), render('backup_rows', array('rows' => $rows)); ?>
  </div>
<?php } ?>
  <?php echo field_notes('parts', '', isset($errors['parts']) ? $errors['parts'] : ''); ?>
  </fieldset>
  <p class="note">Each part is applied by itself: when one fails, the others are applied all the same. The Ethernet port's link goes
  down for a moment, the SNMP agent restarts, and with HTTPS on a new host name restarts the web server.</p>
  <p class="actions"><button type="submit" class="primary">Apply</button> <a class="button" href="backup.php">Cancel</a></p>
</form>
</section>
<?php } ?>
<?php if ($on_trial) { ?>
<section class="card" aria-labelledby="on-trial">
<h2 id="on-trial">On trial, one at a time</h2>
<p>Each of these can cut your connection, so each is a change on trial of its own, as on its own page. Apply what is to be applied at
once before, and choose the file again here when a trial is over: what is done by then no longer differs.</p>
<?php foreach ($on_trial as $section => $rows) {
    $form = form_of_part($section, $file['parts'][$section]); ?>
<form method="post" action="<?php echo h($form['page']); ?>" class="part" aria-label="<?php
  echo h($GLOBALS['backup_parts'][$section]['title']); ?>"><?php echo token_field(), seen_field($seen[$section]); ?>
  <h3><?php echo h($GLOBALS['backup_parts'][$section]['title']); ?></h3>
<?php foreach ($form as $name => $value) { ?>
<?php if ($name != 'page') { ?>
  <input type="hidden" name="<?php echo h($name); ?>" value="<?php echo h($value); ?>">
<?php } ?>
<?php } ?>
  <?php echo render('backup_rows', array('rows' => $rows)), trial_field('trial-' . $section); ?>
  <p class="actions"><button type="submit">Apply <?php echo h($GLOBALS['backup_parts'][$section]['title']); ?></button></p>
</form>
<?php } ?>
</section>
<?php } ?>
