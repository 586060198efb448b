<section class="card" aria-label="Ethernet port 2">
<?php
if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('port.php', 'port'), seen_field($seen);
echo check_field('auto', 'Autonegotiation', $settings->AutoNegotiate == 1,
    'The port agrees on speed and duplex with what it is connected to. Switch it off only when the other side has it off too.');
echo choice_field('speed', 'Speed', array(
    '100' => array('label' => '100 Mbit/s', 'hint' => ''),
    '10' => array('label' => '10 Mbit/s', 'hint' => '')), $settings->Speed, $errors);
echo choice_field('duplex', 'Duplex', array(
    '1' => array('label' => 'Full', 'hint' => 'Sends and receives at the same time.'),
    '0' => array('label' => 'Half', 'hint' => 'Takes turns. For old hubs.')), $settings->Duplex, $errors);
?>
<?php if ($settings->Duplex == -1 && !$errors) echo message('caution',
    '<p>The port did not say which duplex mode it uses.</p>'); ?>
<p class="note">The port's link goes down for a moment when you save.</p>
<?php echo form_end('Save'); ?>
</section>
