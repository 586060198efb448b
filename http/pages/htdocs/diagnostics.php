<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

$session = signed_in();
$filter = text_of($_GET, 'filter');
$live = text_of($_GET, 'live', 'scripts');
$values = array('title' => 'Diagnostics', 'filter' => $filter, 'live' => $live, 'lines' => trace_lines($filter),
    'audit' => audit_entries(), 'own_audit' => page_audit(50), 'lead' => 'What the appliance did, and who asked for it.');
if ($live == '1') {
    $values['refresh'] = array('seconds' => 3,
        'address' => 'diagnostics.php?live=1&background=1&filter=' . urlencode($filter));
}
show('diagnostics', $values);
