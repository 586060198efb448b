--TEST--
Without its directory the log is lost in silence: the directory is not made, and the calls work.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
answer('gethostname', 'library');
rename(dirname(TRACE_LOG), dirname(TRACE_LOG) . '.away');
show(get_network_hostname());
show(set_network_hostname(new Session(), 'library'));
show(set_network_hostname('admin', 'library'));
show(file_exists(dirname(TRACE_LOG)));
show_refusals();
--EXPECT--
"library"
null
null
false
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
thread handle taken
session of "admin"
gethostname: into 64 bytes
thread handle released
Warning: set_network_hostname() ...
