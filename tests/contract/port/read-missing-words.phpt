--TEST--
A missing word reads as an unknown one.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('', 'on', 'on?10', '?', '??', '?10?', 'half', '?half') as $output) {
  answer(IPV4 . '-g port', exits(0), $output);
  show(get_eth2_port_settings(new Session()));
}
show_lines('/^report/');
--EXPECT--
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 1, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 1, Speed: integer 10, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 10, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
