--TEST--
Arguments can be passed by the names in the stub.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
show(set_network_hostname(name: 'library', session: new Session()));
echo preg_match('/Exiting set_network_hostname/', transcript()), "\n";
--EXPECT--
null
1
