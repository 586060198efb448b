--TEST--
SNMP versions and trap receivers travel in lists that reach a second page, identifiers, ports and codes with their bytes in order.
--FILE--
<?php
include 'scripted_platform.inc';
class Settings {
  var $version1 = true;
  var $trap1 = true;
  var $trap2 = 1;
  var $auth_traps_enabled = '0';
  var $community_name = 'private';
}
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3, 1, 0, 6, 5);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Failed');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
show(get_snmp_settings(new Session()));
show(set_snmp_settings(new Session(), new Settings()));
show_transcript();
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded', '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '00000000-00000000-00000002', 2, '192.0.2.2', 65535, '00000000-00000000-00000003', 3, '192.0.2.3', 1,
       '00000000-00000000-00000004', 4, '192.0.2.4', 256, 'ffffffff-fffffffe-00000005', 5, '2001:db8::5', 0);
answer('IStorageLibrary.checkAddressConflict', 'Failed');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
answer('IMgmtAppConfig.deleteTrapRegistration', 'Succeeded');
answer(WRAPPER . 'sh /home/embedded/library/testTrapRegistration.sh', exits(0));
foreach (get_snmp_trap_regs(new Session()) as $number => $receiver) echo $number, ' ', text_of($receiver), "\n";
show(create_snmp_trap_reg(new Session(), 2, '192.0.2.9', '-1'));
show(delete_snmp_trap_reg(new Session(), '01020304-05060708-090A0B0C'));
show(restart_snmp(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: true, version2: false, version3: true, trap1: false, trap2: true, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: true, community_name: "public"}
null
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 3 1 0 6 5
TRACE[time]:Found # of versions::<5>
TRACE[time]:Found version::<3>
TRACE[time]:Found version::<1>
TRACE[time]:Found version::<0>
TRACE[time]:Found version::<6>
TRACE[time]:Found version::<5>
IMgmtAppConfig.getAuthTrapsEnabled() -> Succeeded 1
TRACE[time]:SNMP auth traps are enabled::<1>
IMgmtAppConfig.getReadCommunity() -> Succeeded public
TRACE[time]:SNMP community::<public>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
TRACE[time]:Entering set_snmp_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:Enabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
TRACE[time]:Enabling Trap2:<>
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<0>
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Failed
report: Failed "Could not set auth traps enabled" http/src/network
IMgmtAppConfig.setReadCommunity("private") -> Succeeded
IMgmtAppConfig.restartSNMP() -> Succeeded
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
0 stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"}
1 stdClass {transport: integer 2, ip: "192.0.2.2", port: integer 65535, id: "00000000-00000000-00000002"}
2 stdClass {transport: integer 3, ip: "192.0.2.3", port: integer 1, id: "00000000-00000000-00000003"}
3 stdClass {transport: integer 4, ip: "192.0.2.4", port: integer 256, id: "00000000-00000000-00000004"}
4 stdClass {transport: integer 5, ip: "2001:db8::5", port: integer 0, id: "ffffffff-fffffffe-00000005"}
null
null
null
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 01020304-05060708-090a0b0c 1 192.0.2.1 162 00000000-00000000-00000002 2 192.0.2.2 65535 00000000-00000000-00000003 3 192.0.2.3 1 00000000-00000000-00000004 4 192.0.2.4 256 ffffffff-fffffffe-00000005 5 2001:db8::5 0
TRACE[time]:Number of trap registratrations::<5>
1 - 192.0.2.1 - 162 - 01020304-05060708-090a0b0c
2 - 192.0.2.2 - 65535 - 00000000-00000000-00000002
3 - 192.0.2.3 - 1 - 00000000-00000000-00000003
4 - 192.0.2.4 - 256 - 00000000-00000000-00000004
5 - 2001:db8::5 - 0 - ffffffff-fffffffe-00000005
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IStorageLibrary handle taken
TRACE[time]:New transport was:<2>
TRACE[time]:New Trap IP was:<192.0.2.9>
TRACE[time]:New Trap Port was:<-1>
IStorageLibrary.checkAddressConflict("192.0.2.9") -> Failed
IStorageLibrary handle released
report: 0x00050040 "Internal Address Conflict" http/src/network
IMgmtAppConfig.createTrapRegistration(2 "192.0.2.9" 4294967295) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
TRACE[time]:entering delete_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> Succeeded
TRACE[time]:exiting delete_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
TRACE[time]:entering restart_snmp:<>
thread handle taken
session of "admin"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
TRACE[time]:exiting restart_snmp:<>
thread handle released
