<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
  <p><?php echo $settings->isEnabled ? state('good', 'Encrypted: HTTPS is on')
    : state('caution', 'Not encrypted: HTTPS is off'); ?></p>
  <dl>
    <dt>HTTPS port</dt><dd><?php echo (int) $settings->port; ?></dd>
    <dt>Certificate's key</dt><dd><?php echo h($settings->cipher); ?></dd>
  </dl>
</section>
<section class="card" aria-labelledby="change">
  <h2 id="change">Change</h2>
<?php
if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('security.php', 'https'), seen_field($seen);
echo choice_field('https', 'These pages are served by', array(
    '1' => array('label' => 'HTTPS',
        'hint' => 'Encrypted. The appliance makes its own certificate, so your browser will ask you once whether to trust it.'),
    '0' => array('label' => 'HTTP', 'hint' => 'Not encrypted: anybody on the network can read along.')),
    $settings->isEnabled ? '1' : '0', $errors);
?>
<p class="note">The web server restarts in the new mode, and you will sign in again there: <a href="<?php echo h($address); ?>"><?php echo h($address); ?></a>.</p>
<?php echo form_end('Save', trial_field('trial')); ?>
</section>
