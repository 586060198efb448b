<?php
// What every page begins with: require this file first. It loads what all pages share; a page that needs more of
// this folder requires that itself.

// The appliance's programs and what they store. On a desk its accounts are reached from outside, too.
if (!defined('APPLIANCE_FOLDER')) {
    define('APPLIANCE_FOLDER', '/home/embedded/library');
}

$shared = dirname(__FILE__);
require $shared . '/failures.php';
require $shared . '/files.php';
require $shared . '/random.php';
require $shared . '/request.php';
require $shared . '/answer.php';
require $shared . '/addresses.php';
require $shared . '/accounts.php';
require $shared . '/browsers.php';
require $shared . '/session.php';
require $shared . '/permission.php';
require $shared . '/typed.php';
require $shared . '/html.php';
require $shared . '/forms.php';
require $shared . '/trace_log.php';
require $shared . '/traced_changes.php';
require $shared . '/audit_trail.php';
require $shared . '/audit.php';
require $shared . '/put_back.php';
require $shared . '/asking.php';
require $shared . '/facts.php';
require $shared . '/trial.php';
require $shared . '/coming_back.php';
require $shared . '/outcome.php';

error_reporting(E_ALL);
ini_set('display_errors', '0');
ini_set('log_errors', '1');
ini_set('html_errors', '0'); // so that a failure's message is what the module said
set_error_handler('note_failure');
register_shutdown_function('answer_for_the_dead');

// What is in the menu, in its order: page => title.
$pages = array(
    'index.php' => 'Overview',
    'ipv4.php' => 'IPv4 and host name',
    'ipv6.php' => 'IPv6',
    'dns.php' => 'DNS',
    'port.php' => 'Ethernet port',
    'security.php' => 'Web security',
    'snmp.php' => 'SNMP agent',
    'traps.php' => 'Trap receivers',
    'backup.php' => 'Backup',
    'diagnostics.php' => 'Diagnostics',
    'account.php' => 'Account'
);
