--TEST--
Without scripts and without a readable database, every source that is asked is reported, and every property is there with its "off" value.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
mkdir('/home/embedded/library/CoreService/dat/management.db');
show(get_fw_settings(new Session()));
show_lines('/^Warning/');
--EXPECT--
stdClass {hostname: "", dhcpEnabled: false, ip: "0.0.0.0", netmask: "0.0.0.0", gateway: "0.0.0.0", ipv6Enabled: false, ipv6DhcpEnabled: false, statelessEnabled: false, staticEnabled: false, ipStatic: "0:0:0:0:0:0:0:0", prefix: "64", ipv6Gateway: "0:0:0:0:0:0:0:0", ipv6Addresses: array(), dnsPrimary: "", dnsSecondary: "", sslEnabled: false, snmpEnabled: false, AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
Warning: get_fw_settings(): Could not get hostname information (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get stateless settings (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get static IPv6 settings (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get IPv6 addresses (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get DNS addresses (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get SSL settings (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get SNMP versions (code 0x00000001, utility/getNetworkSettings)
Warning: get_fw_settings(): Could not get port settings (code 0x00000001, utility/getNetworkSettings)
