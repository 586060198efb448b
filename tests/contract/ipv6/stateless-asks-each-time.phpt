--TEST--
Each call runs the script again; arguments are ignored.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-l', exits(0), '1');
show(is_stateless_enabled());
answer(IPV6 . '-l', exits(0), '0');
show(is_stateless_enabled(new Session(), '1'));
--EXPECT--
true
false
