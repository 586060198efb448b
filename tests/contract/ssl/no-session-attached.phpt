--TEST--
Reading and setting take thread and configuration handles and attach no session; the thread handle is released last.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
get_ssl_settings(new Session());
set_ssl_settings(new Session(), true);
echo preg_match('/^session /m', transcript()) ? "attached\n" : "not attached\n";
show_lines('/ handle /');
--EXPECT--
not attached
thread handle taken
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
thread handle released
thread handle taken
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
thread handle released
