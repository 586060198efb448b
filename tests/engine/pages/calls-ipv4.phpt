--TEST--
The IPv4 settings are read as an object and applied by a worker that runs to its end.
--FILE--
<?php
include 'scripted_platform.inc';
class Settings {
  var $hostname = 'library-8';
  var $dhcpEnabled = false;
  var $ip = '10.0.0.5';
  var $netmask = '255.0.0.0';
  var $gateway = '10.0.0.1';
}
answer(IPV4 . '-d status', exits(0), '10.1.1.9?255.255.255.0?10.1.1.1');
answer(IPV4 . '-g host', exits(0), 'library');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
show(set_network_configuration_ipv4(new Session(), new Settings()));
show_transcript();
run_thread();
show_transcript();
--EXPECT--
stdClass {hostname: "library", dhcpEnabled: true, ip: "10.1.1.9", gateway: "10.1.1.1", netmask: "255.255.255.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
TRACE[time]:Output1 = :<10.1.1.9?255.255.255.0?10.1.1.1>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output3 = :<library>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
thread handle released
null
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig handle released
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
