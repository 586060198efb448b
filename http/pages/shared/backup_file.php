<?php
// The file that has all settings: text that people can read and edit. Reading it changes nothing and asks nobody; the files with the
// rules (addresses.php, settings_rules.php and receivers.php) are all it needs.
//
//   # remark            [section]            name = value
//
// A section is a part of the settings. It may be left out, then its settings stay; one that is there has all of its names.

define('BACKUP_VERSION', '1');
define('BACKUP_BYTES', 65536); // of a file
define('BACKUP_LINE_BYTES', 500); // of a line
define('BACKUP_ERRORS', 10); // that are said at once
define('MOST_RECEIVERS', 20);

$on_off = array('on', 'off');

// Section => what people call it, and its names in their order: name => what people call it, and the values that it can have; none
// for a text that the rules judge. 'only' => array of another name and the value that it needs to have for the rest.
$backup_parts = array(
    'name' => array('title' => 'Host name', 'names' => array('host' => array('label' => 'Name'))),
    'dns' => array('title' => 'DNS', 'names' => array('primary' => array('label' => 'Primary server'),
        'secondary' => array('label' => 'Secondary server'))),
    'port' => array('title' => 'Ethernet port', 'names' => array(
        'autonegotiation' => array('label' => 'Autonegotiation', 'values' => $on_off),
        'speed' => array('label' => 'Speed in Mbit/s', 'values' => array('10', '100')),
        'duplex' => array('label' => 'Duplex', 'values' => array('half', 'full')))),
    'snmp' => array('title' => 'SNMP agent', 'names' => array(
        'versions-1-and-2c' => array('label' => 'Versions 1 and 2c', 'values' => $on_off),
        'community' => array('label' => 'Read community'),
        'traps-1' => array('label' => 'Traps of version 1', 'values' => $on_off),
        'traps-2c' => array('label' => 'Traps of version 2c', 'values' => $on_off),
        'trap-on-wrong-community' => array('label' => 'Trap about a wrong community', 'values' => $on_off))),
    'traps' => array('title' => 'Trap receivers', 'names' => array('receiver' => array('label' => 'Receiver'))),
    'ipv4' => array('title' => 'IPv4 address', 'only' => array('mode', 'static'), 'names' => array(
        'mode' => array('label' => 'Obtained by', 'values' => array('dhcp', 'static')), 'address' => array('label' => 'Address'),
        'netmask' => array('label' => 'Netmask'), 'gateway' => array('label' => 'Gateway'))),
    'ipv6' => array('title' => 'IPv6 switch', 'names' => array('enabled' => array('label' => 'IPv6', 'values' => $on_off))),
    'ipv6-automatic' => array('title' => 'Automatic IPv6 addresses', 'names' => array(
        'router-advertisements' => array('label' => 'Router advertisements', 'values' => $on_off),
        'dhcp' => array('label' => 'DHCP', 'values' => $on_off))),
    'ipv6-static' => array('title' => 'Static IPv6 address', 'only' => array('enabled', 'on'), 'names' => array(
        'enabled' => array('label' => 'Static address', 'values' => $on_off), 'address' => array('label' => 'Address'),
        'prefix' => array('label' => 'Prefix length'), 'gateway' => array('label' => 'Gateway'))),
    'web' => array('title' => 'Web security', 'names' => array('https' => array('label' => 'HTTPS', 'values' => $on_off)))
);

// What the first section says of the file itself.
$backup_head = array('version' => array('label' => 'Version'), 'host' => array('label' => 'Host name'),
    'taken' => array('label' => 'Taken'));

// The text of a file. $about: 'host' and 'taken'; $parts: section => its values, name => text, of the receivers a list of texts.
function write_backup($about, $parts, $remarks = array())
{
    $text = '';
    foreach ($remarks as $remark) {
        $text .= '# ' . $remark . "\n";
    }
    $text .= "\n[backup]\nversion = " . BACKUP_VERSION . "\n";
    foreach ($about as $name => $value) {
        $text .= $name == 'version' ? '' : $name . ' = ' . $value . "\n";
    }
    foreach ($parts as $section => $values) {
        $text .= "\n[" . $section . "]\n";
        foreach ($values as $name => $value) {
            $text .= rtrim(($section == 'traps' ? 'receiver' : $name) . ' = ' . $value) . "\n";
        }
    }
    return ltrim($text);
}

// What a file says: array of 'about', 'parts' as write_backup() takes them, and 'errors': number of the line => what is wrong there;
// 0 for the file as a whole. With errors the rest is not to be used.
function read_backup($text)
{
    // Of the lines that have errors: 'wrong' has those with a value that is none of the possible ones, 'faulty' the sections of the
    // others. 'is_ours': whether it is text of this version, so that more can be said of it.
    $file = array('about' => array(), 'parts' => array(), 'lines' => array(), 'errors' => array(), 'section' => '',
        'wrong' => array(), 'faulty' => array(), 'is_ours' => true);
    if (trim($text, " \t\r\n") == '') {
        $file['errors'][0] = 'The file is empty.';
    } elseif (strlen($text) > BACKUP_BYTES) {
        $file['errors'][0] = 'The file is longer than ' . (int) (BACKUP_BYTES / 1024) . ' KiB: it is no file of settings.';
    } else {
        $file = read_backup_lines($file, $text);
        $file = $file['is_ours'] ? check_backup_version($file) : $file;
    }
    // All that is wrong is said at once.
    foreach ($file['is_ours'] ? $file['parts'] : array() as $section => $values) {
        $file = check_backup_part($file, $section, $values);
    }
    ksort($file['errors']);
    return $file;
}

function read_backup_lines($file, $text)
{
    // Editors may put a mark in front, and end lines in three ways.
    $text = substr($text, 0, 3) == "\xef\xbb\xbf" ? substr($text, 3) : $text;
    $text = strpos($text, "\n") === false ? str_replace("\r", "\n", $text) : str_replace("\r\n", "\n", $text);
    $encoding = other_encoding($text);
    foreach (explode("\n", $text) as $i => $line) {
        $error = $encoding == '' ? line_error($line) : "The file is in $encoding. Save it as plain text in UTF-8.";
        if ($error != '') {
            // What follows may be of any kind.
            $file['errors'] = array($i + 1 => $error);
            $file['is_ours'] = false;
            return $file;
        }
        $file = read_backup_line($file, $i + 1, trim($line));
        if (isset($file['errors'][$i + 1]) && !isset($file['wrong'][$i + 1])) {
            $file['faulty'][$file['section']] = true;
        }
    }
    return $file;
}

// The encoding of text that has more bytes for a character, where its beginning shows that: by its mark, or by what is empty beside
// the first letters. Otherwise ''.
function other_encoding($text)
{
    $start = substr($text, 0, 4);
    if ($start == "\xff\xfe\x00\x00" || $start == "\x00\x00\xfe\xff") {
        return 'UTF-32';
    }
    $has_mark = substr($start, 0, 2) == "\xff\xfe" || substr($start, 0, 2) == "\xfe\xff";
    return $has_mark || preg_match('/^(\x00[\x09-\x7e]\x00[\x09-\x7e]|[\x09-\x7e]\x00[\x09-\x7e]\x00)$/D', $start) ? 'UTF-16' : '';
}

// What is wrong with a line as such, or ''.
function line_error($line)
{
    if (preg_match('/[\x00-\x08\x0a-\x1f\x7f]/', $line)) {
        return 'The line has a control character: this is no plain text.';
    }
    if (strlen($line) > BACKUP_LINE_BYTES) {
        return 'The line is longer than ' . BACKUP_LINE_BYTES . ' bytes.';
    }
    return is_utf8($line) ? '' : 'The line is not in UTF-8. Save the file in that encoding.';
}

function is_utf8($line)
{
    return preg_match('/^([\x00-\x7f]|[\xc2-\xdf][\x80-\xbf]|\xe0[\xa0-\xbf][\x80-\xbf]|[\xe1-\xec\xee\xef][\x80-\xbf]{2}'
        . '|\xed[\x80-\x9f][\x80-\xbf]|\xf0[\x90-\xbf][\x80-\xbf]{2}|[\xf1-\xf3][\x80-\xbf]{3}|\xf4[\x80-\x8f][\x80-\xbf]{2})*$/D',
        $line) == 1;
}

function read_backup_line($file, $number, $line)
{
    if ($line == '' || $line[0] == '#') {
        return $file;
    }
    if ($line[0] == '[') {
        return read_backup_section($file, $number, $line);
    }
    $parts = explode('=', $line, 2);
    $name = strtolower(trim($parts[0]));
    if (count($parts) != 2 || !preg_match('/^[a-z0-9-]+$/D', $name)) {
        $file['errors'][$number] = 'This is neither a section, such as [dns], nor a setting, such as "primary = 10.20.0.1".';
    } elseif ($file['section'] == '') {
        $file['errors'][$number] = 'This line stands before the first section, which is [backup].';
    } elseif ($file['section'] != '?') {
        $file = read_backup_value($file, $number, $name, trim($parts[1]));
    }
    return $file;
}

function read_backup_section($file, $number, $line)
{
    $section = strtolower(trim(substr($line, 1, -1)));
    $known = $section == 'backup' || isset($GLOBALS['backup_parts'][$section]);
    $file['section'] = $known && substr($line, -1) == ']' ? $section : '?';
    if ($file['section'] == '?') {
        $file['errors'][$number] = 'There is no such section. There are [backup], [' . implode('], [',
            array_keys($GLOBALS['backup_parts'])) . '].';
    } elseif (isset($file['lines'][$section])) {
        $file['errors'][$number] = "The section [$section] is here twice: it begins in line " . $file['lines'][$section] . ', too.';
    } else {
        $file['lines'][$section] = $number;
        if ($section != 'backup') {
            $file['parts'][$section] = array();
        }
    }
    return $file;
}

function read_backup_value($file, $number, $name, $value)
{
    $section = $file['section'];
    $names = $section == 'backup' ? $GLOBALS['backup_head'] : $GLOBALS['backup_parts'][$section]['names'];
    if (!isset($names[$name])) {
        $file['errors'][$number] = "The section [$section] has no \"" . $name . '". It has ' . implode(', ', array_keys($names)) . '.';
        return $file;
    }
    if ($section == 'traps') {
        return read_backup_receiver($file, $number, $value);
    }
    $key = $section . ' ' . $name;
    if (isset($file['lines'][$key])) {
        $file['errors'][$number] = "\"$name\" is in this section twice: line " . $file['lines'][$key] . ' has it, too.';
        return $file;
    }
    $file['lines'][$key] = $number;
    if ($section == 'backup') {
        $file['about'][$name] = $value;
        return $file;
    }
    if (isset($names[$name]['values'])) {
        $value = strtolower($value);
        // As texts: as numbers 1e1 would be 10.
        if (!in_array($value, $names[$name]['values'], true)) {
            $file['errors'][$number] = "\"$name\" is one of: " . implode(', ', $names[$name]['values']) . '.';
            $file['wrong'][$number] = true;
        }
    }
    $file['parts'][$section][$name] = $value;
    return $file;
}

// Transport, address and port.
function read_backup_receiver($file, $number, $value)
{
    $words = preg_match('/^(\S+)\s+(\S+)\s+(\S+)$/D', $value, $found) ? array_slice($found, 1) : array('', '', '');
    $transports = array('udp' => '1', 'tcp' => '2');
    $transport = strtolower($words[0]);
    if (!isset($transports[$transport])) {
        $file['errors'][$number] = 'A receiver is written as "udp 10.20.0.1 162" or "tcp 10.20.0.1 162".';
        return $file;
    }
    $errors = receiver_errors(array('transport' => $transports[$transport], 'ip' => $words[1], 'port' => $words[2]));
    $text = receiver_in_file($transport, $words[1], $words[2]);
    if ($errors) {
        $file['errors'][$number] = implode(' ', $errors);
    } elseif (in_array($text, $file['parts']['traps'])) {
        $file['errors'][$number] = 'This receiver is here twice: line ' . $file['lines'][$text] . ' has it, too.';
    } elseif (count($file['parts']['traps']) == MOST_RECEIVERS) {
        $file['errors'][$number] = 'There can be ' . MOST_RECEIVERS . ' receivers at most.';
    } else {
        $file['lines'][$text] = $number;
        $file['parts']['traps'][] = $text;
    }
    return $file;
}

function receiver_in_file($transport, $ip, $port)
{
    return $transport . ' ' . short_ipv6($ip) . ' ' . (int) $port;
}

// A file of another version may have any names, so that is the only thing to be said of it.
function check_backup_version($file)
{
    $file['is_ours'] = isset($file['about']['version']) && $file['about']['version'] === BACKUP_VERSION;
    if (!isset($file['about']['version'])) {
        $file['errors'] = array(isset($file['lines']['backup']) ? $file['lines']['backup'] : 1
            => 'The version is missing: a file of settings begins with the section [backup] and the line "version = '
            . BACKUP_VERSION . '".');
    } elseif (!$file['is_ours']) {
        $file['errors'] = array($file['lines']['backup version'] => 'The file is of another version; these pages read version '
            . BACKUP_VERSION . '.');
    }
    return $file;
}

// Whether the section is whole, and what the rules say of its values.
function check_backup_part($file, $section, $values)
{
    if ($section == 'traps') {
        return $file; // each line has been looked at
    }
    $part = $GLOBALS['backup_parts'][$section];
    $only = isset($part['only']) ? $part['only'] : array('', '');
    // Nobody knows what the rest needs where this is missing or wrong.
    $is_open = $only[0] != '' && (!isset($values[$only[0]]) || is_wrong_value($file, $section, $only[0]));
    $has_rest = $only[0] == '' || !$is_open && $values[$only[0]] == $only[1];
    $is_whole = true;
    foreach ($part['names'] as $name => $described) {
        if (!isset($values[$name])) {
            $is_needed = $has_rest || $name == $only[0];
            // A line that cannot be understood may be the one that is missing.
            if ($is_needed && $is_whole && !isset($file['faulty'][$section])) {
                $file['errors'][$file['lines'][$section]] = "The section [$section] lacks \"" . $name . '".';
            }
            $is_whole = $is_whole && !$is_needed;
            $values[$name] = '';
        } elseif (!$has_rest && !$is_open && $name != $only[0]) {
            $file['errors'][$file['lines'][$section . ' ' . $name]] = "\"$name\" needs \"" . implode(' = ', $only) . '".';
        } else {
            $is_whole = $is_whole && !is_wrong_value($file, $section, $name);
        }
    }
    foreach (errors_of_part($section, $values) as $name => $error) {
        // What is to be chosen is judged by other lines, too.
        if (isset($file['lines'][$section . ' ' . $name]) && ($is_whole || !isset($part['names'][$name]['values']))) {
            $file['errors'][$file['lines'][$section . ' ' . $name]] = $error;
        }
    }
    return $file;
}

function is_wrong_value($file, $section, $name)
{
    return isset($file['wrong'][$file['lines'][$section . ' ' . $name]]);
}

// What the rules of the forms say: name => what is wrong.
function errors_of_part($section, $values)
{
    if ($section == 'name') {
        $error = host_name_error($values['host']);
        return $error == '' ? array() : array('host' => $error);
    }
    if ($section == 'dns') {
        return renamed(dns_errors(dns_settings($values)), array('dnsPrimary' => 'primary', 'dnsSecondary' => 'secondary'));
    }
    if ($section == 'snmp') {
        return renamed(agent_errors(agent_settings($values)), array('community_name' => 'community', 'traps' => 'traps-1'));
    }
    if ($section == 'ipv4' && $values['mode'] == 'static') {
        return renamed(ipv4_errors($values['address'], $values['netmask'], $values['gateway']), array('ip' => 'address'));
    }
    if ($section == 'ipv6-static' && $values['enabled'] == 'on') {
        return renamed(ipv6_errors($values['address'], $values['prefix'], $values['gateway']), array('ipStatic' => 'address'));
    }
    return array();
}

function renamed($errors, $names)
{
    $renamed = array();
    foreach ($errors as $name => $error) {
        $renamed[isset($names[$name]) ? $names[$name] : $name] = $error;
    }
    return $renamed;
}

function dns_settings($values)
{
    $settings = new DnsSettings();
    $settings->dnsPrimary = $values['primary'];
    $settings->dnsSecondary = $values['secondary'];
    return $settings;
}

function agent_settings($values)
{
    $settings = new AgentSettings();
    $settings->version1 = $values['versions-1-and-2c'] == 'on';
    $settings->trap1 = $values['traps-1'] == 'on';
    $settings->trap2 = $values['traps-2c'] == 'on';
    $settings->auth_traps_enabled = $values['trap-on-wrong-community'] == 'on';
    $settings->community_name = $values['community'];
    return $settings;
}
