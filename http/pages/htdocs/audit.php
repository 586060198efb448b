<?php
// The audit as a file for other programs, filtered as under Diagnostics.
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/audit_list.php';

signed_in();
ask_device(false);
$services = audit_entries();
end_asking();
list($entries, $gaps) = whole_audit($services);
send_file('audit.csv', 'text/csv', audit_as_csv(filtered_audit($entries, array('user' => text_of($_GET, 'user'),
    'subject' => text_of($_GET, 'subject'), 'outcome' => text_of($_GET, 'outcome'))), $gaps));
