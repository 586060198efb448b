--TEST--
DNS servers, host name, SSL, the settings object and the secondary port are read and set.
--FILE--
<?php
include 'scripted_platform.inc';
class Servers {
  var $dnsPrimary = '10.1.1.1';
  var $dnsSecondary = '192.168.250.2';
}
answer(IPV6 . '-g dns', exits(0), 'disabled 10.0.0.2');
answer(IPV6 . '-D "10.1.1.1 192.168.250.2"', exits(44), 'refused');
answer(IPV4 . '-g host', exits(0), 'library');
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', '0x00001234');
answer('getNetworkSettings', 'first', '1', 'second', '2');
answer(IPV4 . '-P on?10?full', exits(0), '');
answer(IPV4 . '-g port', exits(0), 'off?10?auto');
show(get_network_dns(new Session()));
show(set_network_dns(new Session(), new Servers()));
show(get_network_hostname());
show(set_network_hostname(new Session(), 'library'));
show(get_ssl_settings(new Session()));
show(set_ssl_settings(new Session(), false));
show(get_fw_settings(new Session()));
show(set_eth2_port_settings(new Session(), -1, 1000, 2147483647));
show(get_eth2_port_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {dnsPrimary: "", dnsSecondary: "10.0.0.2"}
null
"library"
null
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
null
stdClass {first: "1", second: "2"}
null
stdClass {AutoNegotiate: integer 0, Speed: integer 10, Duplex: integer -1}
TRACE[time]:Entering get_network_dns:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
TRACE[time]:Exiting get_network_dns:<>
thread handle released
TRACE[time]:Entering set_network_dns:<>
thread handle taken
session of "admin"
IConnectivity handle taken
TRACE[time]:DNS IPvAddresses = :<"10.1.1.1 192.168.250.2">
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [10.1.1.1 192.168.250.2]
TRACE[time]:returnCode = :<11264>
report: 0x00050040 "Failed to set DNS addresses." http/src/network
TRACE[time]:Output = :<refused>
TRACE[time]:Exiting set_network_dns:<>
IConnectivity handle released
thread handle released
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<library>
TRACE[time]:Exiting get_network_hostname:<>
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
TRACE[time]:Entering get_ssl_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
TRACE[time]:Exiting get_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Disabled>
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(false) -> 0x00001234
report: 0x00001234 "Could not set SSL settings" http/src/network
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
TRACE[time]:Entering get_fw_settings:<>
thread handle taken
getNetworkSettings
TRACE[time]:Exiting get_fw_settings:<>
thread handle released
TRACE[time]:Entering set_eth2_port_settings:<>
TRACE[time]:Autonegotiate Input Parameter: :<-1>
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
TRACE[time]:Duplex Input Parameter: :<2147483647>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:Exiting set_eth2_port_settings:<>
TRACE[time]:Entering get_eth2_port_settings:<>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port
TRACE[time]:Output: :<off?10?auto>
TRACE[time]:Exiting get_eth2_port_settings:<>
