<?php
$traps_error = isset($errors['traps']) ? $errors['traps'] : '';
?>
<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
<?php if (has_facts()) { ?>
  <p><?php echo agent_state(); ?></p>
<?php foreach (service_alarms() as $alarm) if ($alarm[3] == 'snmp.php') echo alarm_message($alarm); ?>
<?php } ?>
  <dl>
    <dt>Versions set</dt><dd><?php echo $is_known ? ($agent->version1 ? '1, 2c and 3' : '3 only') : unknown(); ?></dd>
    <dt>Port</dt><dd><?php echo $agent->port ? (int) $agent->port : unknown(); ?></dd>
  </dl>
</section>

<section class="card" aria-labelledby="setting">
  <h2 id="setting">Setting</h2>
<?php if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('snmp.php', 'agent'), seen_field($seen);
if (change_failed() || fact('snmp.answers') == 'no') echo '<input type="hidden" name="again" value="1">'; ?>
<fieldset class="field"><legend>Answers requests of</legend>
  <?php echo check_field('version1', 'Versions 1 and 2c', $settings->version1,
      'Not encrypted: who knows the community can read everything.'); ?>
  <p class="fixed"><?php echo !$is_known ? state('caution', 'Version 3: unknown') : ($agent->version3 ? state('set', 'Version 3')
      : state('off', 'Version 3')); ?>
<?php if ($is_known) { ?>
    <span class="hint">Always on. Authentication <?php echo h($agent->algorithm); ?>, encryption
    <?php echo $agent->encryption ? 'on' : 'off'; ?>, port <?php echo (int) $agent->port; ?>.</span>
<?php } ?></p>
</fieldset>
<?php if ($shows_community) { ?>
<details class="secret"<?php if (isset($errors['community_name'])) echo ' open'; ?>><summary>Read community: show or change it</summary>
<?php echo text_field('community_name', 'Read community', $settings->community_name, $errors,
    'The word that requests of versions 1 and 2c must carry.'); ?>
</details>
<?php } else { ?>
<p class="fixed"><strong>Read community</strong> <span class="hint">Not shown: who knows it can read everything. It is for the role
  admin.</span></p>
<?php } ?>
<fieldset class="field"<?php echo described_by('traps', '', $traps_error); ?>><legend>Sends traps of</legend>
  <?php echo check_field('trap1', 'Version 1', $settings->trap1); ?>
  <?php echo check_field('trap2', 'Version 2c', $settings->trap2); ?>
  <?php echo field_notes('traps', '', $traps_error); ?>
</fieldset>
<fieldset class="field"><legend>Wrong community</legend>
  <?php echo check_field('auth_traps_enabled', 'Send a trap when a request carries a wrong community',
      $settings->auth_traps_enabled); ?>
</fieldset>
<p class="note">The agent restarts when you save; for a moment it answers no requests.
  Traps go to the <a href="traps.php">trap receivers</a>.</p>
<?php echo form_end('Save'); ?>
</section>
