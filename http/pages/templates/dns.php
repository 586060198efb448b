<section class="card" aria-label="DNS servers">
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
