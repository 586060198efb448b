--TEST--
Each identifier of the list, passed to the deletion as it is, is the one that the services gave.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '00000000-00000000-00000002', 2, '192.0.2.2', 65535,
       'fedcba98-76543210-00000003', 1, '2001:db8::3', 1162,
       '00000001-00000000-00000000', 0, '192.0.2.4', 0,
       'ffffffff-ffffffff-ffffffff', 7, '192.0.2.5', 1);
answer('IMgmtAppConfig.deleteTrapRegistration', 'Succeeded');
foreach (get_snmp_trap_regs(new Session()) as $receiver) delete_snmp_trap_reg(new Session(), $receiver->id);
show_lines('/deleteTrapRegistration/');
--EXPECT--
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> Succeeded
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000002) -> Succeeded
IMgmtAppConfig.deleteTrapRegistration(fedcba98-76543210-00000003) -> Succeeded
IMgmtAppConfig.deleteTrapRegistration(00000001-00000000-00000000) -> Succeeded
IMgmtAppConfig.deleteTrapRegistration(ffffffff-ffffffff-ffffffff) -> Succeeded
