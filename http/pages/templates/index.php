<?php
$modes = array();
if ($settings->statelessEnabled) $modes[] = 'router advertisements';
if ($settings->ipv6DhcpEnabled) $modes[] = 'DHCP';
if ($settings->staticEnabled) $modes[] = 'static';
$modes_known = !isset($unknown['stateless']) && !isset($unknown['static']);
$shows_interfaces = shows_interfaces();
$open = may_change($GLOBALS['session']) ? 'Change' : 'Show';
$duplex = array(-1 => '', 0 => 'Half duplex', 1 => 'Full duplex');
?>
<?php if ($restored != '') echo message('caution', '<p><strong>' . h($restored) . '</strong></p><p>Check web security,'
    . ' the SNMP agent and the trap receivers. This stands here until one of these is changed.</p>'); ?>
<?php if ($alarms) { ?>
<div id="alarms">
<?php foreach ($alarms as $alarm) echo alarm_message($alarm); ?>
</div>
<?php } ?>
<div class="tiles">

<section class="card" aria-labelledby="tile-ipv4">
  <h2 id="tile-ipv4"><?php echo icon('ipv4.php'); ?>IPv4</h2>
  <p class="value"><?php echo h(ipv4_in_words($settings, $unknown)); ?></p>
  <p><?php echo ipv4_state($settings, $unknown); ?></p>
  <dl>
    <dt>Obtained by</dt><dd><?php echo isset($unknown['ipv4']) ? unknown() : ($settings->dhcpEnabled ? 'DHCP' : 'Static setting'); ?></dd>
<?php if ($shows_interfaces && lease_in_words() != '') { ?>
    <dt>Lease</dt><dd><?php echo h(lease_in_words()); ?></dd>
<?php } ?>
    <dt>Netmask</dt><dd><?php echo address_or_unknown($settings->netmask, $unknown); ?></dd>
    <dt>Gateway</dt><dd><?php echo address_or_unknown($settings->gateway, $unknown); ?></dd>
    <dt>Host name</dt><dd><?php echo text_or_unknown($settings->hostname); ?></dd>
<?php if ($shows_interfaces) { ?>
    <dt>Port 1 (eth0)</dt><dd><?php echo link_state('eth0'), ' ', h(link_in_words('eth0')); ?></dd>
<?php } ?>
  </dl>
  <p class="more"><a href="ipv4.php"><?php echo $open; ?> IPv4 and host name</a></p>
</section>

<section class="card" aria-labelledby="tile-ipv6">
  <h2 id="tile-ipv6"><?php echo icon('ipv6.php'); ?>IPv6</h2>
  <p><?php echo ipv6_state($settings->ipv6Enabled); ?></p>
  <dl>
    <dt>Obtained by</dt><dd><?php echo !$modes_known ? unknown() : ($modes ? h(ucfirst(implode(', ', $modes))) : 'Nothing'); ?></dd>
    <dt>Addresses</dt>
<?php foreach ($settings->ipv6Addresses ? $settings->ipv6Addresses : array() as $address) { ?>
    <dd><?php echo h($address), ipv6_source_hint($address); ?></dd>
<?php } ?>
<?php if (!$settings->ipv6Addresses) { ?>
    <dd><?php echo isset($unknown['addresses']) ? unknown() : 'None'; ?></dd>
<?php } ?>
  </dl>
  <p class="more"><a href="ipv6.php"><?php echo $open; ?> IPv6</a></p>
</section>

<section class="card" aria-labelledby="tile-dns">
  <h2 id="tile-dns"><?php echo icon('dns.php'); ?>DNS</h2>
  <p><?php echo isset($unknown['dns']) ? unknown() : ($settings->dnsPrimary . $settings->dnsSecondary == ''
      ? state('off', 'No servers set') : state('set', 'Servers set')); ?></p>
  <dl>
<?php if (isset($unknown['dns'])) { ?>
    <dt>Primary</dt><dd><?php echo unknown(); ?></dd>
    <dt>Secondary</dt><dd><?php echo unknown(); ?></dd>
<?php } else { ?>
    <dt>Primary</dt><dd><?php echo $settings->dnsPrimary == '' ? 'None' : h($settings->dnsPrimary); ?></dd>
    <dt>Secondary</dt><dd><?php echo $settings->dnsSecondary == '' ? 'None' : h($settings->dnsSecondary); ?></dd>
<?php } ?>
<?php if ($shows_interfaces) { ?>
    <dt>In use now</dt>
<?php echo servers_in_use(); ?>
<?php } ?>
  </dl>
  <p class="more"><a href="dns.php"><?php echo $open; ?> DNS</a></p>
</section>

<section class="card" aria-labelledby="tile-port">
  <h2 id="tile-port"><?php echo icon('port.php'); ?>Ethernet port 2</h2>
<?php if ($shows_interfaces) { ?>
  <p><?php echo link_state('eth2'); ?></p>
<?php } ?>
  <dl>
<?php if ($shows_interfaces) { ?>
    <dt>Link now</dt><dd><?php echo fact('eth2.link') == '' ? unknown() : h(fact('eth2.link') == 'down' ? 'Down'
        : (link_in_words('eth2') == '' ? 'Up' : link_in_words('eth2'))); ?></dd>
<?php } ?>
    <dt>Autonegotiation</dt><dd><?php echo isset($unknown['port']) ? unknown() : ($settings->AutoNegotiate ? 'On' : 'Off'); ?></dd>
<?php if (isset($unknown['port']) || !$settings->AutoNegotiate) { ?>
    <dt>Speed</dt><dd><?php echo isset($unknown['port']) ? unknown() : h($settings->Speed) . ' Mbit/s'; ?></dd>
    <dt>Duplex</dt><dd><?php echo text_or_unknown(isset($unknown['port']) ? '' : $duplex[$settings->Duplex]); ?></dd>
<?php } ?>
  </dl>
  <p class="more"><a href="port.php"><?php echo $open; ?> the port</a></p>
</section>

<section class="card" aria-labelledby="tile-security">
  <h2 id="tile-security"><?php echo icon('security.php'); ?>Web security</h2>
  <p><?php echo web_state(); ?></p>
  <dl>
    <dt>HTTPS</dt><dd><?php echo isset($unknown['ssl']) ? unknown() : ($settings->sslEnabled ? 'On' : 'Off'); ?></dd>
<?php if (!isset($unknown['ssl']) && $settings->sslEnabled && fact('certificate.end') != '') { ?>
    <dt>Certificate</dt><dd><?php echo has_certificate_expired() ? 'Expired ' : 'Until ', h(time_in_words(fact('certificate.end'))); ?></dd>
<?php } ?>
  </dl>
  <p class="more"><a href="security.php"><?php echo $open; ?> web security</a></p>
</section>

<section class="card" aria-labelledby="tile-snmp">
  <h2 id="tile-snmp"><?php echo icon('snmp.php'); ?>SNMP</h2>
<?php if (has_facts()) { ?>
  <p><?php echo agent_state(); ?></p>
<?php } ?>
  <dl>
    <dt>Versions</dt><dd><?php echo isset($unknown['snmp']) ? unknown() : ($settings->snmpEnabled ? '1, 2c and 3' : '3 only'); ?></dd>
    <dt>Trap receivers</dt><dd><?php echo text_or_unknown((string) $receivers); ?></dd>
  </dl>
  <p class="more"><a href="snmp.php"><?php echo $open; ?> the agent</a> <a href="traps.php"><?php echo $open; ?> trap receivers</a></p>
</section>

</div>
<?php if (has_facts()) { ?>
<p class="hint">The appliance's clock: <?php echo text_or_unknown(fact('clock') == '' ? '' : time_in_words(fact('clock'))); ?></p>
<?php } ?>
