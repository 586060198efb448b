<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
  <dl>
<?php if (shows_interfaces()) { ?>
    <dt>Link</dt><dd><?php echo link_state('eth2'), ' ', h(link_in_words('eth2')); ?></dd>
    <dt>Hardware address</dt><dd><?php echo text_or_unknown(fact('eth2.hardware-address')); ?></dd>
<?php } ?>
    <dt>Setting</dt><dd><?php echo port_setting_in_words($seen); ?></dd>
  </dl>
</section>

<?php if (may_change($GLOBALS['session'])) { ?>
<section class="card" aria-labelledby="setting">
  <h2 id="setting">Setting</h2>
<?php
if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('port.php', 'port'), seen_field($seen);
echo check_field('auto', 'Autonegotiation', $settings->AutoNegotiate === null ? null : $settings->AutoNegotiate == 1,
    'The port agrees on speed and duplex with what it is connected to. Switch it off only when the other side has it off too.');
?>
<fieldset class="by-hand" data-inactive-while="auto">
<?php
echo choice_field('speed', 'Speed', array(
    '100' => array('label' => '100 Mbit/s', 'hint' => ''),
    '10' => array('label' => '10 Mbit/s', 'hint' => '')), (string) $settings->Speed, $errors);
echo choice_field('duplex', 'Duplex', array(
    '1' => array('label' => 'Full', 'hint' => 'Sends and receives at the same time.'),
    '0' => array('label' => 'Half', 'hint' => 'Takes turns. For old hubs.')), (string) $settings->Duplex, $errors);
?>
<p class="hint while-inactive">Not used while autonegotiation is on.</p>
</fieldset>
<?php if ($settings->Duplex === -1 && !$errors) echo message('caution',
    '<p>The port did not say which duplex mode it uses.</p>'); ?>
<p class="note">The port's link goes down for a moment when you save.</p>
<?php echo form_end('Save'); ?>
</section>
<?php } else echo why_only_shown(); ?>
