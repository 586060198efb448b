<?php
// The addresses that the interface has, which the page fetches again while it is open.
$now = sourced_addresses('ipv6.address');
?>
<div id="addresses" role="status"<?php if ($enabled) echo ' data-poll'; ?>>
<?php if (!$now && !tells_addresses()) { ?>
  <p><?php echo unknown(); ?></p>
<?php } elseif (!$now) { ?>
  <p class="empty"><?php echo $enabled ? 'None yet.' : 'None, because IPv6 is off.'; ?></p>
<?php } else { ?>
  <ul class="addresses">
<?php foreach ($now as $address => $source) { ?>
    <li><?php echo h(preg_replace('!/.*!', '', $address)), ipv6_source_hint($address); ?></li>
<?php } ?>
  </ul>
<?php } ?>
</div>
