<?php
$modes = array();
if ($settings->statelessEnabled) $modes[] = 'router advertisements';
if ($settings->ipv6DhcpEnabled) $modes[] = 'DHCP';
if ($settings->staticEnabled) $modes[] = 'static';
$has_address = $settings->ip != '0.0.0.0' && $settings->ip != '';
$duplex = array(-1 => 'unknown duplex', 0 => 'half duplex', 1 => 'full duplex');
?>
<?php if ($restored != '') echo message('caution', '<p><strong>' . h($restored) . '</strong></p><p>Check web security,'
    . ' the SNMP agent and the trap receivers. This stands here until one of these is changed.</p>'); ?>
<div class="tiles">

<section class="card" aria-labelledby="tile-ipv4">
  <h2 id="tile-ipv4"><?php echo icon('ipv4.php'); ?>IPv4</h2>
  <p class="value"><?php echo $has_address ? h($settings->ip) : 'No address'; ?></p>
  <p><?php echo $has_address ? state('good', 'In use') : state('caution', $settings->dhcpEnabled
    ? 'No DHCP server has answered' : 'Not known'); ?></p>
  <dl>
    <dt>Obtained by</dt><dd><?php echo $settings->dhcpEnabled ? 'DHCP' : 'Static setting'; ?></dd>
    <dt>Netmask</dt><dd><?php echo h($settings->netmask); ?></dd>
    <dt>Gateway</dt><dd><?php echo h($settings->gateway); ?></dd>
    <dt>Host name</dt><dd><?php echo h($settings->hostname); ?></dd>
  </dl>
  <p class="more"><a href="ipv4.php">Change IPv4 and host name</a></p>
</section>

<section class="card" aria-labelledby="tile-ipv6">
  <h2 id="tile-ipv6"><?php echo icon('ipv6.php'); ?>IPv6</h2>
  <p><?php echo on_off($settings->ipv6Enabled); ?></p>
  <dl>
    <dt>Obtained by</dt><dd><?php echo $modes ? h(ucfirst(implode(', ', $modes))) : 'Nothing'; ?></dd>
    <dt>Addresses</dt>
<?php foreach ($settings->ipv6Addresses as $address) { ?>
    <dd><?php echo h($address); ?></dd>
<?php } ?>
<?php if (!$settings->ipv6Addresses) { ?>
    <dd>None</dd>
<?php } ?>
  </dl>
  <p class="more"><a href="ipv6.php">Change IPv6</a></p>
</section>

<section class="card" aria-labelledby="tile-dns">
  <h2 id="tile-dns"><?php echo icon('dns.php'); ?>DNS</h2>
  <p><?php echo $settings->dnsPrimary . $settings->dnsSecondary == '' ? state('off', 'No servers set')
    : state('good', 'Servers set'); ?></p>
  <dl>
    <dt>Primary</dt><dd><?php echo $settings->dnsPrimary == '' ? 'None' : h($settings->dnsPrimary); ?></dd>
    <dt>Secondary</dt><dd><?php echo $settings->dnsSecondary == '' ? 'None' : h($settings->dnsSecondary); ?></dd>
  </dl>
  <p class="more"><a href="dns.php">Change DNS</a></p>
</section>

<section class="card" aria-labelledby="tile-port">
  <h2 id="tile-port"><?php echo icon('port.php'); ?>Ethernet port 2</h2>
  <p class="value"><?php echo h($settings->Speed); ?> Mbit/s</p>
  <p><?php echo $settings->AutoNegotiate ? state('good', 'Autonegotiation on')
    : state('off', 'Autonegotiation off'); ?></p>
  <dl>
    <dt>Duplex</dt><dd><?php echo h(ucfirst($duplex[$settings->Duplex])); ?></dd>
  </dl>
  <p class="more"><a href="port.php">Change the port</a></p>
</section>

<section class="card" aria-labelledby="tile-security">
  <h2 id="tile-security"><?php echo icon('security.php'); ?>Web security</h2>
  <p><?php echo $settings->sslEnabled ? state('good', 'These pages are encrypted')
    : state('caution', 'These pages are not encrypted'); ?></p>
  <dl>
    <dt>HTTPS</dt><dd><?php echo $settings->sslEnabled ? 'On' : 'Off'; ?></dd>
  </dl>
  <p class="more"><a href="security.php">Change web security</a></p>
</section>

<section class="card" aria-labelledby="tile-snmp">
  <h2 id="tile-snmp"><?php echo icon('snmp.php'); ?>SNMP</h2>
  <p><?php echo $settings->snmpEnabled ? state('good', 'Versions 1, 2c and 3') : state('good', 'Version 3 only'); ?></p>
  <dl>
    <dt>Trap receivers</dt><dd><?php echo (int) $receivers; ?></dd>
  </dl>
  <p class="more"><a href="snmp.php">Change the agent</a> <a href="traps.php">Change trap receivers</a></p>
</section>

</div>
