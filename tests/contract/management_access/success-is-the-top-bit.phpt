--TEST--
A code with the top bit set is a success; every other, 0 included, is a failure.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
foreach (array('0x80000000', '0x80000001', '0xC0050006', '0xFFFFFFFF', '0', '1', '0x50005', '0x40000000', '0x7FFFFFFF') as $code) {
  answer('IMgmtAppConfig.getSSLEnabled', $code, 1);
  set_network_hostname(new Session(), 'library-8');
  echo $code, strpos(transcript(), 'setSSLEnabled(true)') ? " success\n" : " failure\n";
  forget_transcript();
}
--EXPECT--
0x80000000 success
0x80000001 success
0xC0050006 success
0xFFFFFFFF success
0 failure
1 failure
0x50005 failure
0x40000000 failure
0x7FFFFFFF failure
