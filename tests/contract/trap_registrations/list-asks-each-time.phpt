--TEST--
Each call asks the services again, and an array that the page has got stays what it was.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '00000000-00000000-00000002', 2, '192.0.2.2', 65535);
$first = get_snmp_trap_regs(new Session());
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       'ffffffff-ffffffff-ffffffff', 7, '192.0.2.5', 1);
$second = get_snmp_trap_regs(new Session());
show($first);
show($second);
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"}, 1: stdClass {transport: integer 2, ip: "192.0.2.2", port: integer 65535, id: "00000000-00000000-00000002"})
array(0: stdClass {transport: integer 7, ip: "192.0.2.5", port: integer 1, id: "ffffffff-ffffffff-ffffffff"})
