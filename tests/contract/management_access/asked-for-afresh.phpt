--TEST--
The proxy is asked for first in every access to the services, before the thread's handle and the session, and afresh for the certificate; the runner is asked for afresh before every command.
--FILE--
<?php
include 'scripted_platform.inc';
answer('instances', 'shown');
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer(IPV4 . '-d status', exits(0), '??');
answer(IPV4 . '-g static', exits(0), '10.0.0.5?255.0.0.0?10.0.0.1');
answer(IPV4 . '-g host', exits(0), 'library');
answer(IPV4 . '-n library-8', exits(0));
answer(IPV4 . '-c -d on', exits(0));
answer('getNetworkSettings');
answer(TRAP_TEST, 0);
$lines = '/^(run|read|proxy|runner|session|system|get)|handle/';

get_network_configuration_ipv4(new Session());
show_lines($lines);
set_network_hostname(new Session(), 'library-8');
show_lines($lines);

echo "\n";
$settings = new Ipv4Settings();
$settings->dhcpEnabled = true;
$settings->hostname = 'library-8';
set_network_configuration_ipv4(new Session(), $settings);
show_lines($lines);
run_thread();
show_lines($lines);

echo "\n";
get_ssl_settings(new Session());
show_lines($lines);
get_fw_settings(new Session());
show_lines($lines);
restart_snmp(new Session());
show_lines($lines);
get_network_hostname();
show_lines($lines);
--EXPECT--
proxy asked for
thread handle taken
session of "admin"
runner asked for
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
runner asked for
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g static
runner asked for
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
thread handle released
proxy asked for
thread handle taken
session of "admin"
gethostname: into 64 bytes
runner asked for
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
proxy asked for
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
thread handle released

proxy asked for
thread handle taken
session of "admin"
thread handle released
gethostname: into 64 bytes
runner asked for
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
proxy asked for
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
runner asked for
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on

proxy asked for
thread handle taken
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
thread handle released
proxy asked for
thread handle taken
getNetworkSettings
thread handle released
proxy asked for
thread handle taken
session of "admin"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
thread handle released
runner asked for
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
