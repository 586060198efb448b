--TEST--
A word counts only when it is exactly the one wanted.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('ON?010?FULL', ' on? 10? full', 'on ?10 ?full ', 'one?100?fully', '1?10.0?1', "on\0?10\0?half\0") as $output) {
  answer(IPV4 . '-g port', exits(0), $output);
  show(get_eth2_port_settings(new Session()));
}
--EXPECT--
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
