<?php
// All settings as parts of a file (backup_file.php): reading them, comparing them with those of a file, and applying some.

define('TOO_LONG_A_FILE', 'The file is longer than 64 KiB: it is no file of settings.');

// Sections whose change can cut the connection: each with its kind of change. They are asked for by the pages that they belong to.
$parts_on_trial = array('ipv4' => 'ipv4', 'ipv6' => 'ipv6', 'ipv6-automatic' => 'ipv6', 'ipv6-static' => 'ipv6', 'web' => 'ssl');

// The others in the order in which they are applied, each with its function: the host name may restart the web server.
$parts_at_once = array('dns' => 'apply_dns', 'port' => 'apply_port', 'snmp' => 'apply_snmp', 'traps' => 'apply_traps',
    'name' => 'apply_name');

// Section => its values as the file has them, or false when they cannot be read.
function parts_of_now($session)
{
    $parts = array();
    foreach ($GLOBALS['backup_parts'] as $section => $part) {
        $parts[$section] = part_of_now($session, $section);
    }
    // What the module says of them is then no setting of anybody's.
    foreach (services_unreadable() ? array('web', 'snmp', 'traps') : array() as $section) {
        $parts[$section] = false;
    }
    return $parts;
}

function part_of_now($session, $section)
{
    $failures = count($GLOBALS['failures']);
    $values = isset($GLOBALS['parts_on_trial'][$section])
        ? part_of_trial($section, settings_of($session, $GLOBALS['parts_on_trial'][$section])) : part_at_once($session, $section);
    return count($GLOBALS['failures']) > $failures ? false : $values;
}

// $settings: as put_back() takes them.
function part_of_trial($section, $settings)
{
    if ($section == 'ipv4') {
        return $settings['dhcp'] ? array('mode' => 'dhcp') : array('mode' => 'static', 'address' => $settings['ip'],
            'netmask' => $settings['netmask'], 'gateway' => $settings['gateway']);
    }
    if ($section == 'ipv6') {
        return array('enabled' => in_file($settings['enabled']));
    }
    if ($section == 'ipv6-automatic') {
        return array('router-advertisements' => in_file($settings['stateless']), 'dhcp' => in_file($settings['dhcp']));
    }
    if ($section == 'ipv6-static') {
        return !$settings['static'] ? array('enabled' => 'off') : array('enabled' => 'on', 'address' => short_ipv6($settings['ip']),
            'prefix' => (string) $settings['prefix'], 'gateway' => short_ipv6($settings['gateway']));
    }
    return array('https' => in_file($settings['https']));
}

function part_at_once($session, $section)
{
    if ($section == 'name') {
        return array('host' => get_network_hostname());
    }
    if ($section == 'dns') {
        $now = get_network_dns($session);
        return array('primary' => $now->dnsPrimary, 'secondary' => $now->dnsSecondary);
    }
    if ($section == 'port') {
        $now = get_eth2_port_settings($session);
        return $now->Duplex == -1 ? false : array('autonegotiation' => in_file($now->AutoNegotiate == 1),
            'speed' => (string) $now->Speed, 'duplex' => $now->Duplex == 1 ? 'full' : 'half');
    }
    if ($section == 'snmp') {
        $now = get_snmp_settings($session);
        return array('versions-1-and-2c' => in_file($now->version1), 'community' => $now->community_name,
            'traps-1' => in_file($now->trap1), 'traps-2c' => in_file($now->trap2),
            'trap-on-wrong-community' => in_file($now->auth_traps_enabled));
    }
    return array_keys(receivers_of_now($session));
}

// The receiver as the file has it => its number.
function receivers_of_now($session)
{
    $receivers = array();
    foreach (get_snmp_trap_regs($session) as $receiver) {
        $receivers[receiver_in_file($receiver->transport == 1 ? 'udp' : 'tcp', $receiver->ip, $receiver->port)] = $receiver->id;
    }
    return $receivers;
}

function in_file($on)
{
    return $on ? 'on' : 'off';
}

// What the file has and is otherwise now: rows of 'label', 'now' and 'wanted'. What a secret is, is not shown.
function rows_of_part($section, $now, $wanted)
{
    $rows = array();
    if ($section == 'traps') {
        foreach (array_merge($now, $wanted) as $receiver) {
            if (!in_array($receiver, $now) || !in_array($receiver, $wanted)) {
                $rows[] = array('label' => 'Receiver', 'now' => in_array($receiver, $now) ? $receiver : 'None',
                    'wanted' => in_array($receiver, $wanted) ? $receiver : 'None');
            }
        }
        return $rows;
    }
    foreach ($GLOBALS['backup_parts'][$section]['names'] as $name => $described) {
        $old = isset($now[$name]) ? $now[$name] : '';
        $new = isset($wanted[$name]) ? $wanted[$name] : '';
        if (!same_value($old, $new)) {
            $rows[] = $name == 'community' ? array('label' => $described['label'], 'now' => 'Not shown', 'wanted' => 'Another one')
                : array('label' => $described['label'], 'now' => shown_in_words($described, $old),
                'wanted' => shown_in_words($described, $new));
        }
    }
    return $rows;
}

function shown_in_words($described, $value)
{
    if ($value == '') {
        return 'None';
    }
    return !isset($described['values']) ? $value : ($value == 'dhcp' ? 'DHCP' : ucfirst($value));
}

// What of the file differs from now: array of 'rows' (section => rows), 'same', 'left_out' and 'unknown' (lists of sections).
function compare_parts($now, $wanted)
{
    $result = array('rows' => array(), 'same' => array(), 'left_out' => array(), 'unknown' => array());
    foreach ($GLOBALS['backup_parts'] as $section => $part) {
        if (!isset($wanted[$section])) {
            $result['left_out'][] = $section;
        } elseif ($now[$section] === false) {
            $result['unknown'][] = $section;
        } else {
            $rows = rows_of_part($section, $now[$section], $wanted[$section]);
            if ($rows) {
                $result['rows'][$section] = $rows;
            } else {
                $result['same'][] = $section;
            }
        }
    }
    return $result;
}

function titles_of_parts($sections)
{
    $titles = array();
    foreach ($sections as $section) {
        $titles[] = $GLOBALS['backup_parts'][$section]['title'];
    }
    return implode(', ', $titles);
}

// What a form carries of the settings that it shows, and compares them with: of each section a sum, for nobody needs to read it. Of
// a community the form is not to have it.
function seen_of_parts($now)
{
    $seen = array();
    foreach ($now as $section => $values) {
        $seen[$section] = $values === false ? '' : md5($_SESSION['token'] . serialize($values));
    }
    return $seen;
}

// Applies a part: array of the kind of state, and what came of it in words.
function apply_part($session, $section, $wanted, $seen)
{
    ask_device();
    $now = part_of_now($session, $section);
    if ($now === false || in_array($section, array('snmp', 'traps')) && services_unreadable()) {
        return array('bad', 'Not applied: the settings of now cannot be read.');
    }
    if (!rows_of_part($section, $now, $wanted)) {
        return array('good', 'Is as in the file already.');
    }
    $sums = seen_of_parts(array($section => $now));
    if (!isset($seen[$section]) || $seen[$section] != $sums[$section]) {
        return array('caution', 'Not applied: somebody has changed these settings since you saw them. Compare again below.');
    }
    begin_change();
    $function = $GLOBALS['parts_at_once'][$section];
    $function($session, $now, $wanted);
    if (!change_failed()) {
        return array('good', 'Applied.');
    }
    $failure = $GLOBALS['failures'][count($GLOBALS['failures']) - 1];
    return array('bad', 'The appliance reports: ' . rtrim($failure['message'], '.') . '.');
}

function apply_name($session, $now, $wanted)
{
    set_network_hostname($session, $wanted['host']);
    audit_part($session, 'name', 'name', 'the host name', $now, $wanted);
}

function apply_dns($session, $now, $wanted)
{
    set_network_dns($session, dns_settings($wanted));
    audit_part($session, 'dns', 'dns', 'the DNS servers', $now, $wanted);
}

function apply_port($session, $now, $wanted)
{
    set_eth2_port_settings($session, $wanted['autonegotiation'] == 'on' ? 1 : 0, (int) $wanted['speed'],
        $wanted['duplex'] == 'full' ? 1 : 0);
    audit_part($session, 'port', 'port', 'the Ethernet port', $now, $wanted);
}

function apply_snmp($session, $now, $wanted)
{
    name_user_to_services($session);
    set_snmp_settings($session, agent_settings($wanted));
    audit_part($session, 'snmp', 'snmp', 'the SNMP agent', $now, $wanted);
}

function audit_part($session, $subject, $section, $what, $now, $wanted)
{
    $labels = array();
    foreach ($GLOBALS['backup_parts'][$section]['names'] as $name => $described) {
        $labels[$name] = $described['label'];
    }
    audit_change($session, $subject, 'Set', $what . ' as in a file', $labels, $now, $wanted);
}

// What is new first, as far as there is room, and what goes only when all the rest is there: what fails half-way loses nothing.
function apply_traps($session, $now, $wanted)
{
    $numbers = receivers_of_now($session);
    $going = array();
    foreach ($now as $receiver) {
        if (!in_array($receiver, $wanted)) {
            $going[] = $receiver;
        }
    }
    $count = count($now);
    foreach ($wanted as $receiver) {
        if (in_array($receiver, $now)) {
            continue;
        }
        if ($count >= MOST_RECEIVERS && $going) {
            $gone = array_shift($going);
            delete_receiver_of_file($session, $gone, $numbers[$gone]);
            $count--;
        }
        if (!add_receiver_of_file($session, $receiver)) {
            return;
        }
        $count++;
    }
    foreach ($going as $receiver) {
        delete_receiver_of_file($session, $receiver, $numbers[$receiver]);
    }
}

// Returns whether it was added.
function add_receiver_of_file($session, $receiver)
{
    list($transport, $ip, $port) = explode(' ', $receiver);
    $before = get_snmp_trap_regs($session);
    $failures = count($GLOBALS['failures']);
    create_snmp_trap_reg($session, $transport == 'udp' ? 1 : 2, $ip, $port);
    audit_change($session, 'traps', 'Add', 'the trap receiver ' . receiver_text($ip, $port, $transport == 'udp' ? 1 : 2)
        . ', as in a file');
    if (count($GLOBALS['failures']) == $failures) {
        return true;
    }
    if (is_internal_address()) {
        take_back_additions($session, $before, $ip);
    }
    return false;
}

function delete_receiver_of_file($session, $receiver, $number)
{
    list($transport, $ip, $port) = explode(' ', $receiver);
    delete_snmp_trap_reg($session, $number);
    audit_change($session, 'traps', 'Delete', 'the trap receiver ' . receiver_text($ip, $port, $transport == 'udp' ? 1 : 2)
        . ', as it is not in a file');
}

// What the form of a part's own page sends for it: name => value; 'page' is where it is sent to.
function form_of_part($section, $wanted)
{
    if ($section == 'ipv4') {
        return array('page' => 'ipv4.php', 'change' => 'addressing', 'mode' => $wanted['mode'],
            'ip' => value_of($wanted, 'address'), 'netmask' => value_of($wanted, 'netmask'), 'gateway' => value_of($wanted, 'gateway'));
    }
    if ($section == 'ipv6') {
        return array('page' => 'ipv6.php', 'change' => 'ipv6', 'enabled' => $wanted['enabled'] == 'on' ? '1' : '');
    }
    if ($section == 'ipv6-automatic') {
        return array('page' => 'ipv6.php', 'change' => 'ipv6', 'stateless' => $wanted['router-advertisements'] == 'on' ? '1' : '',
            'dhcp' => $wanted['dhcp'] == 'on' ? '1' : '');
    }
    if ($section == 'ipv6-static') {
        return array('page' => 'ipv6.php', 'change' => 'ipv6', 'static' => $wanted['enabled'] == 'on' ? '1' : '',
            'ipStatic' => value_of($wanted, 'address'), 'prefix' => value_of($wanted, 'prefix'),
            'gateway' => value_of($wanted, 'gateway'));
    }
    return array('page' => 'security.php', 'change' => 'https', 'https' => $wanted['https'] == 'on' ? '1' : '0');
}

function value_of($values, $name)
{
    return isset($values[$name]) ? $values[$name] : '';
}

// The settings that such a form shows, as its page tells them apart.
function seen_on_page($session, $section)
{
    $kind = $GLOBALS['parts_on_trial'][$section];
    return values_before($kind, settings_of($session, $kind));
}

// What was uploaded: array of its text and of what was wrong with the upload, '' for nothing.
function uploaded_text($name)
{
    $upload = isset($_FILES[$name]) && is_array($_FILES[$name]) ? $_FILES[$name] : array('error' => 4);
    $error = isset($upload['error']) && !is_array($upload['error']) ? $upload['error'] : 4;
    if ($error == 4) {
        return array('', 'Choose a file.');
    }
    if ($error == 1 || $error == 2 || !$error && $upload['size'] > BACKUP_BYTES) {
        return array('', TOO_LONG_A_FILE);
    }
    $file = !$error && is_uploaded_file($upload['tmp_name']) ? @fopen($upload['tmp_name'], 'rb') : false;
    if (!$file) {
        return array('', 'The file did not arrive whole. Try again; if that does not help, the disk of the appliance may be full.');
    }
    $text = '';
    while (!feof($file) && strlen($text) <= BACKUP_BYTES) {
        $text .= fread($file, 8192);
    }
    fclose($file);
    return array($text, '');
}
