<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/audit_trail.php';

// Also where the appliance's ports are published under other numbers, HTTPS is that far above HTTP.
define('PORT_DISTANCE', 443 - 80);

$session = signed_in();
$settings = get_ssl_settings($session);
$errors = array();
if (is_post()) {
    $wanted = posted('https');
    if ($wanted != '0' && $wanted != '1') {
        $errors['https'] = 'Choose how these pages are served.';
    } elseif (!failed() && ($wanted == '1') == $settings->isEnabled) {
        go_to('security.php', 'HTTPS is ' . ($settings->isEnabled ? 'on' : 'off') . ' already; nothing was changed.');
    } else {
        name_user_to_services($session);
        begin_change();
        set_ssl_settings($session, $wanted == '1');
        if (!change_failed()) {
            forget_session();
            $address = address_after($wanted == '1');
            show('restarting', array('title' => 'Web security', 'on' => $wanted == '1', 'address' => $address,
                'refresh' => array('seconds' => 5, 'address' => $address)));
        }
    }
}
show('security', array('title' => 'Web security', 'settings' => $settings, 'errors' => $errors,
    'lead' => 'Whether your password and all settings travel encrypted.', 'address' => address_after(!$settings->isEnabled)));

// Where this page is in the other mode. With HTTPS on, the address without it leads there too.
function address_after($on)
{
    if (!preg_match('/^(.*?)(:([0-9]+))?$/D', host_of_request(), $found) || $found[1] == '') {
        return 'security.php';
    }
    $port = isset($found[3]) ? $found[3] : '';
    if (is_https() && !$on && $port != '') {
        $port -= PORT_DISTANCE;
    }
    $scheme = is_https() && $on ? 'https://' : 'http://';
    return $scheme . $found[1] . ($port == '' ? '' : ':' . $port) . '/security.php';
}
