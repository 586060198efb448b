--TEST--
Version 3 is always set, 1 and 2 go together, and each trap version is added when it is on, in this order.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
$settings = new SnmpSettings();
foreach (array(false, true) as $settings->version1) {
  foreach (array(false, true) as $settings->trap1) {
    foreach (array(false, true) as $settings->trap2) set_snmp_settings(new Session(), $settings);
  }
}
show_lines('/(abling|setSNMPVersions)/');
--EXPECT--
TRACE[time]:Disabling SNMP:<>
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
TRACE[time]:Disabling SNMP:<>
TRACE[time]:Enabling Trap2:<>
IMgmtAppConfig.setSNMPVersions(3 5) -> Succeeded
TRACE[time]:Disabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
IMgmtAppConfig.setSNMPVersions(3 4) -> Succeeded
TRACE[time]:Disabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
TRACE[time]:Enabling Trap2:<>
IMgmtAppConfig.setSNMPVersions(3 4 5) -> Succeeded
TRACE[time]:Enabling SNMP:<>
IMgmtAppConfig.setSNMPVersions(3 1 2) -> Succeeded
TRACE[time]:Enabling SNMP:<>
TRACE[time]:Enabling Trap2:<>
IMgmtAppConfig.setSNMPVersions(3 1 2 5) -> Succeeded
TRACE[time]:Enabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
IMgmtAppConfig.setSNMPVersions(3 1 2 4) -> Succeeded
TRACE[time]:Enabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
TRACE[time]:Enabling Trap2:<>
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
