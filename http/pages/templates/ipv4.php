<?php
// What is not known reads as zeros; what was typed stays.
$known = posted('change') == 'addressing' || $settings->ip != '0.0.0.0';
?>
<section class="card" aria-labelledby="name">
  <h2 id="name">Host name</h2>
<?php
echo form_begin('ipv4.php', 'name');
echo text_field('hostname', 'Name', $settings->hostname, $errors, 'Letters, digits, hyphens and dots; at most 64 characters.');
?>
<p class="note">The new name is in use at once. With HTTPS on, the web server restarts with a certificate for it.</p>
<?php echo form_end('Save name'); ?>
</section>

<section class="card" aria-labelledby="addressing">
  <h2 id="addressing">IPv4 address</h2>
<?php
echo form_begin('ipv4.php', 'addressing');
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
<p class="note when-static">The change begins after three seconds. When the address changes, this page loses its connection;
it is then at <span class="address" data-address-from="ip"><?php echo is_https() ? 'https' : 'http'; ?>://(the new address)/</span>,
where you sign in again.</p>
<p class="note when-dhcp">The change begins after three seconds. When the server gives another address than the present one, this
page loses its connection; the server's list of leases then shows the new address beside the name <?php
  echo h($name); ?>.</p>
<?php echo form_end('Apply'); ?>
</section>
