--TEST--
Words behind the third are left out.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('on?10?half?off', 'on?10?half?', '?on?10?half', 'on?10?full' . str_repeat('?half', 1000)) as $output) {
  answer(IPV4 . '-g port', exits(0), $output);
  show(get_eth2_port_settings(new Session()));
}
show_lines('/^report/');
--EXPECT--
stdClass {AutoNegotiate: integer 1, Speed: integer 10, Duplex: integer 0}
stdClass {AutoNegotiate: integer 1, Speed: integer 10, Duplex: integer 0}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 1, Speed: integer 10, Duplex: integer 1}
