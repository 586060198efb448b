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

<section class="card" aria-labelledby="switch">
  <h2 id="switch">IPv6 altogether</h2>
<?php
if ($meanwhile && $change == 'enabled') echo meanwhile_message($meanwhile);
echo form_begin('ipv6.php', 'enabled'), seen_field($seen['enabled']);
echo check_field('enabled', 'Use IPv6', $enabled, 'Off means off for all sources below; their settings are kept.');
?>
<p class="note">When IPv6 is switched off, pages that were opened under an IPv6 address lose their connection.</p>
<?php echo form_end('Save', trial_field('trial-switch')); ?>
</section>

<section class="card" aria-labelledby="sources">
  <h2 id="sources">Automatic addresses</h2>
<?php
if ($meanwhile && $change == 'modes') echo meanwhile_message($meanwhile);
echo form_begin('ipv6.php', 'modes'), seen_field($seen['modes']);
echo check_field('stateless', 'Router advertisements', $modes['stateless'],
    'The appliance makes its address from what the router announces (SLAAC).');
echo check_field('dhcp', 'DHCP', $modes['dhcp'], 'A DHCPv6 server in your network gives the address.');
?>
<p class="note">Addresses of a source that is switched off go at once: pages that were opened under one of them lose their
connection.</p>
<?php
echo form_end('Save', trial_field('trial-modes'));
?>
</section>

<section class="card" aria-labelledby="static-address">
  <h2 id="static-address">Static address</h2>
<?php
if ($meanwhile && $change == 'static') echo meanwhile_message($meanwhile);
echo form_begin('ipv6.php', 'static'), seen_field($seen['static']);
echo check_field('static', 'Use a static address', $typed['static'], 'In addition to the automatic ones.');
?>
<div class="when-static">
<?php
echo text_field('ipStatic', 'Address', $typed['ipStatic'], $errors);
echo text_field('prefix', 'Prefix length', $typed['prefix'], $errors, '', 'inputmode="numeric" class="short"');
echo text_field('gateway', 'Gateway', $typed['gateway'], $errors,
    'The router of the network; its link-local address (fe80…) will do.');
?>
</div>
<p class="note"><?php echo $enabled ? 'The change begins at once.'
    : 'IPv6 is off: the address is stored, and comes into force when IPv6 is switched on.'; ?> A page that was
opened under the static address loses its connection when that address changes or goes.</p>
<?php echo form_end('Apply', trial_field('trial-static')); ?>
</section>
