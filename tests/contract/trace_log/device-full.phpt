--TEST--
On a full file system the log is lost in silence, and the calls work.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
$directory = dirname(TRACE_LOG);
echo shell_exec("mount -t tmpfs -o size=4k log $directory 2>&1; head -c 4096 /dev/zero 2>&1 >$directory/filler");
show(get_network_hostname());
show(filesize(TRACE_LOG));
show_lines('/^[a-z]/');
--EXPECT--
"library"
integer 0
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
