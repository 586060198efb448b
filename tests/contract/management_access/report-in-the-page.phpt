--TEST--
A report is a warning of the page's request: message, code, source and line; the call goes on.
--PLATFORM--
development
--FILE--
<?php
ob_start();
get_network_hostname();
set_network_hostname(new stdClass(), 'library-8');
echo preg_replace('|network:\d+|', 'network:LINE', ob_get_clean());
--EXPECT--

Warning: get_network_hostname(): Could not get hostname information (code 0x00050006, http/src/network:LINE) in /tmp/scripted_platform/page.php on line 3

Warning: set_network_hostname(): Could not set library hostname (code 0x00000001, http/src/network:LINE) in /tmp/scripted_platform/page.php on line 4
