--TEST--
Of an output without a line end nothing is removed.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'printf library');
show(get_network_hostname());
write_script(IPV6_SCRIPT, 'printf 1');
show(is_stateless_enabled());
show_lines('/^(TRACE.*Output|Warning)/');
--EXPECT--
"library"
true
TRACE[time]:Output = :<library>
