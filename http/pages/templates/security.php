<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
  <p><?php echo web_state(); ?></p>
<?php foreach (has_facts() ? service_alarms() : array() as $alarm) if ($alarm[3] == 'security.php') echo alarm_message($alarm); ?>
  <dl>
    <dt>Set</dt><dd><?php echo $is_known ? ($settings->isEnabled ? 'HTTPS' : 'HTTP') : unknown(); ?></dd>
    <dt>Served now</dt><dd><?php echo h(strtoupper(web_mode_now())); ?></dd>
    <dt>HTTPS port</dt><dd><?php echo $settings->port ? (int) $settings->port : unknown(); ?></dd>
    <dt>Certificate's key</dt><dd><?php echo text_or_unknown($settings->cipher); ?></dd>
<?php if (fact('certificate.fingerprint') != '') { ?>
    <dt>Certificate for</dt><dd><?php echo text_or_unknown(certificate_names()); ?></dd>
    <dt>Valid until</dt><dd><?php echo fact('certificate.end') == '' ? unknown() : h(time_in_words(fact('certificate.end'))), ' ',
      has_certificate_expired() ? state('bad', 'Expired') : ''; ?></dd>
    <dt>SHA-256 fingerprint</dt><dd class="code"><?php echo h(fact('certificate.fingerprint')); ?></dd>
<?php } ?>
  </dl>
</section>
<?php if (may_change($GLOBALS['session'])) { ?>
<section class="card" aria-labelledby="change">
  <h2 id="change">Change</h2>
<?php
if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('security.php', 'https'), seen_field($seen);
echo choice_field('https', 'These pages are served by', array(
    '1' => array('label' => 'HTTPS',
        'hint' => 'Encrypted. The appliance makes its own certificate, so your browser will ask you once whether to trust it.'),
    '0' => array('label' => 'HTTP', 'hint' => 'Not encrypted: anybody on the network can read along.')),
    $is_known ? ($settings->isEnabled ? '1' : '0') : null, $errors);
?>
<p class="note">The web server restarts in the new mode, and you will sign in again there: <a href="<?php echo h($address); ?>"><?php echo h($address); ?></a>.</p>
<?php echo form_end('Save', trial_field('trial')); ?>
</section>
<?php } else echo why_only_shown(); ?>
