<section class="card" aria-labelledby="now"<?php if ($enabled && shows_interfaces()) echo ' data-poll="3000" data-parts="addresses"'; ?>>
  <h2 id="now">Now</h2>
  <dl class="states">
    <dt>IPv6</dt><dd><?php echo on_off($enabled); ?></dd>
    <dt>Router advertisements</dt><dd><?php echo $unknown['stateless'] ? unknown() : on_off($modes['stateless']); ?></dd>
    <dt>DHCP</dt><dd><?php echo on_off($modes['dhcp']); ?></dd>
    <dt>Static address</dt><dd><?php echo $unknown['static'] ? unknown() : on_off($in_use); ?></dd>
  </dl>
  <h3>Addresses</h3>
<?php if (shows_interfaces()) { ?>
<?php echo render('ipv6_now', array('enabled' => $enabled)); ?>
<?php } elseif (!$addresses) { ?>
  <p class="empty"><?php echo $unknown['addresses'] ? unknown() : ($enabled ? 'None yet.' : 'None, because IPv6 is off.'); ?></p>
<?php } else { ?>
  <ul class="addresses">
<?php foreach ($addresses as $address) { ?>
    <li><?php echo h($address); ?></li>
<?php } ?>
  </ul>
<?php } ?>
</section>

<?php if ($other_way != '') echo message('note', '<p>You are using these pages over IPv6. A change below may end that: they are at <a href="'
    . h($other_way) . 'ipv6.php">' . h($other_way) . '</a>, too, which no change on this page touches.</p>'); ?>

<section class="card" aria-labelledby="setting">
  <h2 id="setting">Setting</h2>
<?php
if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('ipv6.php', 'ipv6'), seen_field($seen);
echo answer_field('enabled', 'Use IPv6', $typed['enabled'] == 'On', 'Off means off for all sources below; their settings are kept.',
    $errors);
?>
<fieldset class="ways" data-inactive-unless="enabled">
<p class="hint while-inactive">Not in force while IPv6 is off. What is set here is kept, and in force once IPv6 is on.</p>
<fieldset>
<legend>Automatic addresses</legend>
<?php
echo answer_field('stateless', 'Router advertisements', is_on($typed['stateless']),
    'The appliance makes its address from what the router announces (SLAAC).');
echo answer_field('dhcp', 'DHCP', is_on($typed['dhcp']), 'A DHCPv6 server in your network gives the address.');
?>
</fieldset>
<fieldset>
<legend>Static address</legend>
<?php echo answer_field('static', 'Use a static address', is_on($typed['mode']), 'In addition to the automatic ones.'); ?>
<div class="when-static">
<?php
echo text_field('ipStatic', 'Address', $typed['ip'], $errors);
echo text_field('prefix', 'Prefix length', $typed['prefix'], $errors, '', 'inputmode="numeric" class="short"');
echo text_field('gateway', 'Gateway', $typed['gateway'], $errors,
    'The router of the network; its link-local address (fe80…) will do.');
?>
</div>
</fieldset>
</fieldset>
<p class="note">The change begins at once. Addresses of what is switched off, and a static address that changes, go: pages that were
opened under one of them lose their connection.</p>
<?php echo form_end('Apply', trial_field('trial')); ?>
</section>
