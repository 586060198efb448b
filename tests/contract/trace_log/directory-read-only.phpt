--TEST--
On a read-only file system the log is lost in silence, and the calls work.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
echo shell_exec('mount -t tmpfs -o ro log ' . dirname(TRACE_LOG) . ' 2>&1');
show(@fopen(TRACE_LOG, 'a'));
show(get_network_hostname());
show(file_exists(TRACE_LOG));
show_lines('/^[a-z]/');
--EXPECT--
false
"library"
false
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
