<?php
// What is not known reads as zeros; what was typed stays.
$known = posted('change') == 'addressing' || $settings->ip != '0.0.0.0';
$shows_interfaces = shows_interfaces();
$unknown = $is_known ? array() : array('ipv4' => true);
?>
<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
  <p><?php echo ipv4_state($current, $unknown); ?></p>
  <dl>
<?php if ($shows_interfaces) { ?>
    <dt>Address in use</dt><dd><?php echo h(ipv4_in_words($current, $unknown)); ?></dd>
    <dt>Gateway in use</dt><dd><?php echo fact('ipv4.gateway') == '' && !tells_addresses() ? unknown()
      : h(present_value(fact('ipv4.gateway'))); ?></dd>
<?php if (lease_in_words() != '') { ?>
    <dt>Lease</dt><dd><?php echo h(lease_in_words()); ?></dd>
<?php } ?>
    <dt>Name servers in use</dt>
<?php echo servers_in_use(); ?>
    <dt>Link of port 1 (eth0)</dt><dd><?php echo link_state('eth0'), ' ', h(link_in_words('eth0')); ?></dd>
    <dt>Hardware address</dt><dd><?php echo text_or_unknown(fact('eth0.hardware-address')); ?></dd>
<?php } else { ?>
    <dt>Address</dt><dd><?php echo address_or_unknown($current->ip, $unknown); ?></dd>
    <dt>Gateway</dt><dd><?php echo address_or_unknown($current->gateway, $unknown); ?></dd>
<?php } ?>
    <dt>Comes from</dt><dd><?php echo !$is_known ? unknown() : ($current->dhcpEnabled ? 'A DHCP server' : 'The static setting'); ?></dd>
    <dt>Netmask</dt><dd><?php echo address_or_unknown($current->netmask, $unknown); ?></dd>
  </dl>
</section>

<section class="card" aria-labelledby="name">
  <h2 id="name">Host name</h2>
<?php
if ($meanwhile && posted('change') == 'name') echo meanwhile_message($meanwhile);
echo form_begin('ipv4.php', 'name'), seen_field($name === '' ? array() : array('hostname' => $name));
echo text_field('hostname', 'Name', $settings->hostname === '' && !$errors ? null : $settings->hostname, $errors, 'Letters, digits, hyphens and dots; at most 64 characters.');
?>
<p class="note">The new name is in use at once. With HTTPS on, the web server restarts with a certificate for it.</p>
<?php echo form_end('Save name'); ?>
</section>

<?php if (may_change($GLOBALS['session'])) { ?>
<section class="card" aria-labelledby="addressing">
  <h2 id="addressing">IPv4 address</h2>
<?php
if ($meanwhile && posted('change') == 'addressing') echo meanwhile_message($meanwhile);
echo form_begin('ipv4.php', 'addressing'), seen_field($seen);
echo choice_field('mode', 'Obtained by', array(
    'dhcp' => array('label' => 'DHCP',
        'hint' => 'A server in your network gives the address, and may give another one later.'),
    'static' => array('label' => 'Static setting',
        'hint' => 'You choose an address that nothing else in your network uses.')), $mode, $errors);
?>
<div class="when-static">
<?php
echo text_field('ip', 'Address', $known ? $settings->ip : '', $errors, '', 'inputmode="decimal"');
echo text_field('netmask', 'Netmask', $known ? $settings->netmask : '', $errors, '', 'inputmode="decimal"');
echo text_field('gateway', 'Gateway', $known ? $settings->gateway : '', $errors, 'The router of the network.', 'inputmode="decimal"');
?>
</div>
<?php $loses = is_used_address($current->ip); // not where another machine publishes the pages ?>
<p class="note when-static">The change begins after three seconds. <?php echo $loses
  ? 'When the address changes, this page loses its connection; it is then at ' : 'This page stays where it is; from the network it is then at '; ?>
<span class="address" data-address-from="ip"><?php echo is_https() ? 'https' : 'http'; ?>://(the new address)/</span><?php
  echo $loses ? ', where it goes on' : ''; ?>.</p>
<p class="note when-dhcp">The change begins after three seconds. <?php echo $loses ? 'When the server gives another address than the present
one, this page loses its connection; the' : 'This page stays where it is; the'; ?> server's list of leases then shows the new address beside the name <?php
  echo h($name); ?>.</p>
<?php echo form_end('Apply', trial_field('trial')); ?>
</section>
<?php } ?>
