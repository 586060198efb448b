<?php
// What is so now, as the device's own script says it, beside what is set; and what is wrong when the two differ. A device may
// have no such script: then nothing is said about it. What the script does not say, or says in another way than here, is not
// known.

$fact_forms = array(
    'clock' => '[0-9]{1,12}', 'in-place' => 'yes',
    'eth0.link' => 'up|down', 'eth0.speed' => '[0-9]{1,7}', 'eth0.duplex' => 'full|half',
    'eth0.hardware-address' => '[0-9a-f]{2}(:[0-9a-f]{2}){5}',
    'eth2.link' => 'up|down', 'eth2.speed' => '[0-9]{1,7}', 'eth2.duplex' => 'full|half',
    'eth2.hardware-address' => '[0-9a-f]{2}(:[0-9a-f]{2}){5}',
    'ipv4.address' => '[0-9.]{7,15}/[0-9]{1,2}', 'ipv4.gateway' => '[0-9.]{7,15}',
    'ipv4.lease-server' => '[0-9.]{7,15}', 'ipv4.lease-end' => '[0-9]{1,12}|never',
    'ipv6.address' => '[0-9a-f:.]{2,45}/[0-9]{1,3} (router-advertisement|dhcp|static|link-local|other)',
    'dns.server' => '[0-9A-Fa-f:.]{2,45} (setting|dhcp|dhcpv6|other)',
    'snmp.answers' => 'yes|no',
    'services.readable' => 'yes|no', 'web.configured-mode' => 'http|https', 'web.stored-mode' => 'http|https',
    'certificate.names' => '[\x20-\x7e]{1,4000}', 'certificate.end' => '[0-9]{1,12}',
    'certificate.fingerprint' => '[0-9A-F]{2}(:[0-9A-F]{2}){31}',
    'settings.restored' => '.{1,4000}', 'end' => 'yes'
);

$facts = null; // name => list of values, when they were taken from what the script has printed

// All values of a fact. ask_device() has to be called first.
function facts_of($name)
{
    if ($GLOBALS['facts'] === null) {
        end_asking();
        $GLOBALS['facts'] = facts_in($GLOBALS['printed_facts']);
    }
    return isset($GLOBALS['facts'][$name]) ? $GLOBALS['facts'][$name] : array();
}

function facts_in($text)
{
    $facts = array();
    foreach (explode("\n", $text) as $line) {
        $parts = explode(' ', $line, 2);
        $form = isset($GLOBALS['fact_forms'][$parts[0]]) ? $GLOBALS['fact_forms'][$parts[0]] : '';
        if (count($parts) == 2 && $form != '' && preg_match('!^(' . $form . ')$!D', $parts[1])) {
            $facts[$parts[0]][] = $parts[1];
        }
    }
    return $facts;
}

// A fact's only value; empty when it is not known.
function fact($name)
{
    $values = facts_of($name);
    return $values ? $values[0] : '';
}

// Whether what is so now can be shown beside the settings: in place the interfaces are another machine's.
function shows_interfaces()
{
    return has_facts() && fact('in-place') == '';
}

// Whether what is not said about addresses is not there: of a script that was ended nobody knows what it would have said.
function tells_addresses()
{
    return fact('eth0.link') != '' && fact('end') != '';
}

// The IPv4 address that counts: what is on the interface, or else what the settings say; empty when it is not known.
function ipv4_in_words($settings, $unknown)
{
    $now = shows_interfaces() ? ipv4_addresses_now() : array();
    if ($now) {
        return implode(', ', $now);
    }
    if (isset($unknown['ipv4']) || shows_interfaces() && !tells_addresses() && present_value($settings->ip) == 'None') {
        return 'Unknown';
    }
    return present_value($settings->ip) == 'None' ? 'No address' : $settings->ip;
}

function lacks_lease($settings)
{
    return $settings->dhcpEnabled && present_value($settings->ip) == 'None';
}

// Green only for an address that the interface really has.
function ipv4_state($settings, $unknown)
{
    $has_it = in_array($settings->ip, ipv4_addresses_now());
    if (isset($unknown['ipv4']) || shows_interfaces() && (fact('eth0.link') == '' || !$has_it && !tells_addresses())) {
        return unknown();
    }
    if (!shows_interfaces()) {
        return present_value($settings->ip) != 'None' ? state('set', 'Set') : state('caution', $settings->dhcpEnabled
            ? 'No DHCP server has answered' : 'Unknown');
    }
    if (lacks_lease($settings)) {
        return state('bad', 'No DHCP server has answered');
    }
    if (!$has_it) {
        return state('bad', $settings->dhcpEnabled ? 'The leased address is not in use' : 'The static address is not in use');
    }
    return fact('eth0.link') == 'up' ? state('good', 'In use') : state('bad', 'No link');
}

// A netmask or gateway; zeros stand for none, and without an address for one that is not known.
function address_or_unknown($address, $unknown)
{
    return isset($unknown['ipv4']) ? unknown() : h(present_value($address));
}

function ipv6_state($enabled)
{
    if (!$enabled || !shows_interfaces()) {
        return on_off($enabled);
    }
    foreach (sourced_addresses('ipv6.address') as $address => $source) {
        if (is_lasting_ipv6($source) && fact('eth0.link') != '') {
            return fact('eth0.link') == 'up' ? state('good', 'In use') : state('bad', 'No link');
        }
    }
    return tells_addresses() ? state('caution', 'On, without an address of the network') : unknown();
}

// The name servers that are asked, each with where it comes from, as entries of a list of terms.
function servers_in_use()
{
    $html = '';
    foreach (sourced_addresses('dns.server') as $server => $source) {
        $html .= '<dd>' . h($server) . ' <span class="hint">' . h(source_in_words($source)) . '</span></dd>';
    }
    return $html != '' ? $html : '<dd>' . (tells_addresses() ? 'None' : unknown()) . '</dd>';
}

// What serves these pages: this very request is seen, the rest is what the device says.
function web_state()
{
    if (has_facts() && is_web_as_stored() === false) {
        return state('bad', 'Not in the mode that is set');
    }
    if (!is_https()) {
        return state('caution', 'These pages are not encrypted');
    }
    return has_certificate_expired() ? state('bad', 'The certificate has expired') : state('good', 'These pages are encrypted');
}

// Whether the settings of web security, the SNMP agent and the trap receivers cannot be read. The module tells that of the agent
// alone, and says that HTTPS is off and that there is no receiver.
function services_unreadable()
{
    return has_facts() && in_array('no', facts_of('services.readable'));
}

function agent_state()
{
    $answers = fact('snmp.answers');
    return $answers == '' ? unknown() : ($answers == 'yes' ? state('good', 'The agent answers')
        : state('bad', 'The agent does not answer'));
}

// The addresses alone, or with where they come from: address => source.
function ipv4_addresses_now()
{
    $addresses = array();
    foreach (facts_of('ipv4.address') as $address) {
        list($addresses[]) = explode('/', $address);
    }
    return $addresses;
}

function sourced_addresses($name)
{
    $sources = array();
    foreach (facts_of($name) as $value) {
        list($address, $source) = explode(' ', $value);
        $sources[$address] = $source;
    }
    return $sources;
}

// In words.
function source_in_words($source)
{
    $words = array('router-advertisement' => 'from router advertisements', 'dhcp' => 'from DHCP', 'dhcpv6' => 'from DHCPv6',
        'static' => 'static', 'link-local' => 'link-local', 'setting' => 'set here', 'other' => 'from elsewhere');
    return $words[$source];
}

// Where an IPv6 address comes from, with a prefix length or without, as markup to stand behind it; empty when that is not known.
function ipv6_source_hint($address)
{
    $address = preg_replace('!/.*!', '', $address);
    foreach (shows_interfaces() ? sourced_addresses('ipv6.address') : array() as $one => $source) {
        if (same_value(preg_replace('!/.*!', '', $one), $address)) {
            return ' <span class="hint">' . h(source_in_words($source)) . '</span>';
        }
    }
    return '';
}

function is_lasting_ipv6($source)
{
    return $source != 'link-local';
}

// How the link of a port is, as a state; its speed and duplex mode in words.
function link_state($port)
{
    $link = fact($port . '.link');
    return $link == '' ? unknown() : ($link == 'up' ? state('good', 'Link up') : state($port == 'eth2' ? 'caution' : 'bad',
        'No link'));
}

function link_in_words($port)
{
    $words = array();
    if (fact($port . '.speed') != '') {
        $words[] = fact($port . '.speed') . ' Mbit/s';
    }
    if (fact($port . '.duplex') != '') {
        $words[] = fact($port . '.duplex') . ' duplex';
    }
    return implode(', ', $words);
}

// A time, as people write it, and the clock's zone.
function time_in_words($seconds)
{
    return gmdate('Y-m-d H:i', (int) $seconds) . ' UTC';
}

function lease_in_words()
{
    if (fact('ipv4.lease-server') == '') {
        return '';
    }
    $end = fact('ipv4.lease-end');
    $until = $end == 'never' ? ', without an end' : ($end == '' ? '' : ', until ' . gmdate('Y-m-d H:i:s', (int) $end) . ' UTC');
    return 'From ' . fact('ipv4.lease-server') . $until;
}

// By which this very page has come; in the mode of HTTPS the server answers nothing else.
function web_mode_now()
{
    return is_https() ? 'https' : 'http';
}

// Whether the web service is as it is stored: true, false, or '' when that is not known. The mode in the server's configuration
// counts as well: the server has it from its next start on.
function is_web_as_stored()
{
    $stored = fact('web.stored-mode');
    return $stored == '' ? '' : web_mode_now() == $stored && (fact('web.configured-mode') == '' || fact('web.configured-mode') == $stored);
}

function has_certificate_expired()
{
    return fact('certificate.end') != '' && fact('clock') != '' && (int) fact('certificate.end') <= (int) fact('clock');
}

// What is wrong now, each an array of the kind of message, what it is, what to do, and the page to do it on. $settings: those of
// get_fw_settings(), of which '' is not known.
function alarms($settings)
{
    if (!has_facts()) {
        return array();
    }
    return array_merge(shows_interfaces() ? array_merge(link_alarms(), ipv4_alarms($settings)) : array(), service_alarms());
}

function link_alarms()
{
    $alarms = array();
    $advice = 'Check the cable, and whether the device at its other end is on';
    if (fact('eth0.link') == 'down') {
        $alarms[] = array('bad', 'Ethernet port 1 (eth0) has no link.', $advice . '.', '');
    }
    if (fact('eth2.link') == 'down') {
        $alarms[] = array('caution', 'Ethernet port 2 (eth2) has no link.', $advice . ' and has the same speed and duplex mode.'
            . ' A port that nothing is plugged into needs nothing.', 'port.php');
    }
    return $alarms;
}

function ipv4_alarms($settings)
{
    if ($settings->ip === '' || !tells_addresses()) {
        return array();
    }
    if (lacks_lease($settings)) {
        return array(array('bad', 'No DHCP server has given the appliance an IPv4 address.', 'Check that a DHCP server is there and'
            . ' has addresses left; the appliance goes on asking. Or set a static address.', 'ipv4.php'));
    }
    return in_array($settings->ip, ipv4_addresses_now()) ? array() : array(array('bad', ($settings->dhcpEnabled ? 'The leased address '
        : 'The static address ') . $settings->ip . ' is not on the first Ethernet port.', 'Something other than these pages has taken'
        . ' it away. Restart the appliance: its start puts what is stored into force.', 'ipv4.php'));
}

function service_alarms()
{
    $alarms = array();
    if (fact('snmp.answers') == 'no') {
        $alarms[] = array('bad', 'The SNMP agent does not answer.', 'Management systems cannot read the appliance, and no traps are'
            . ' sent. Save the settings of the agent again: that starts it anew.', 'snmp.php');
    }
    if (is_web_as_stored() === false) {
        $names = array('http' => 'HTTP', 'https' => 'HTTPS');
        $running = web_mode_now() == fact('web.stored-mode') ? 'configured for ' . $names[fact('web.configured-mode')]
            : 'serving ' . $names[web_mode_now()];
        $alarms[] = array('bad', 'The web server is ' . $running . ', but ' . $names[fact('web.stored-mode')] . ' is set.',
            'Choose the other mode and then this one again, or restart the appliance: its start puts the stored mode into force.',
            'security.php');
    }
    if (has_certificate_expired() && is_https()) {
        $alarms[] = array('bad', 'The certificate of these pages has expired, on ' . time_in_words(fact('certificate.end')) . '.',
            'Switch HTTPS off and on again: the appliance then makes another one. When the appliance\'s clock ('
            . time_in_words(fact('clock')) . ') is wrong, set it right first.', 'security.php');
    }
    return $alarms;
}

// The names and addresses that the certificate is for, as people write them.
function certificate_names()
{
    $names = array();
    foreach (explode(', ', fact('certificate.names')) as $name) {
        $names[] = short_ipv6($name);
    }
    return implode(', ', $names);
}

// As markup.
function alarm_message($alarm)
{
    list($kind, $what, $advice, $page) = $alarm;
    return message($kind, '<p><strong>' . h($what) . '</strong></p><p>' . h($advice) . ($page == '' ? '' : ' <a href="' . h($page)
        . '">' . h($GLOBALS['pages'][$page]) . '</a>') . '</p>');
}
