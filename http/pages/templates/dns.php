<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
  <dl>
<?php if (shows_interfaces()) { ?>
    <dt>In use</dt>
<?php echo servers_in_use(); ?>
<?php } ?>
    <dt>Set here</dt><dd><?php echo !$is_known ? unknown() : h($seen['dnsPrimary'] == '' ? 'None'
        : trim($seen['dnsPrimary'] . ', ' . $seen['dnsSecondary'], ', ')); ?></dd>
  </dl>
<?php if ($is_known && $seen['dnsPrimary'] == '') { ?>
  <p class="hint">While none are set here, the appliance asks the servers that come with its leases.</p>
<?php } ?>
</section>

<?php if (may_change($GLOBALS['session'])) { ?>
<section class="card" aria-labelledby="servers">
  <h2 id="servers">DNS servers</h2>
<?php
if ($meanwhile) echo meanwhile_message($meanwhile);
echo form_begin('dns.php', 'dns'), seen_field($seen);
echo text_field('dnsPrimary', 'Primary server', $settings->dnsPrimary, $errors,
    'IPv4 or IPv6 address. Leave both empty to remove the servers.');
echo text_field('dnsSecondary', 'Secondary server', $settings->dnsSecondary, $errors,
    'Asked when the primary does not answer. May be empty.');
?>
<p class="note">The change takes effect at once and does not interrupt this page.</p>
<?php echo form_end('Save'); ?>
</section>
<?php } else echo why_only_shown(); ?>
