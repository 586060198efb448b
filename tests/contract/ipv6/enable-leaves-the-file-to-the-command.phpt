--TEST--
The flag file is made and removed by the commands alone: where these do nothing, nothing changes.
--FILE--
<?php
include 'scripted_platform.inc';
answer(WRAPPER . '/bin/touch ' . IPV6_ENABLED_FILE, exits(0));
answer(WRAPPER . '/bin/rm ' . IPV6_ENABLED_FILE, exits(0));
set_ipv6_enabled(new Session(), true);
show(file_exists(IPV6_ENABLED_FILE));
append_to(IPV6_ENABLED_FILE, 'content');
set_ipv6_enabled(new Session(), false);
show(implode('', file(IPV6_ENABLED_FILE)));
show(is_ipv6_enabled());
--EXPECT--
false
"content"
true
