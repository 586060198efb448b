--TEST--
The flag file is held open while it is removed, and no longer.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
// Which of the interpreter's files are the flag file, while the command runs.
unlink('/bin/rm');
write_script('/bin/rm', '#!/bin/sh
find /proc/$PPID/fd -lname "$1" -printf "open at removal: %l\n" >>' . platform_file('transcript') . "\n");
chmod('/bin/rm', 0755);
set_ipv6_enabled(new Session(), false);
show_transcript();
echo shell_exec('find /proc/$PPID/fd -lname ' . IPV6_ENABLED_FILE . ' -printf "open afterwards\n"');
--EXPECT--
TRACE[time]:Entering set_ipv6_enabled:<>
open at removal: /home/embedded/library/CoreService/dat/ipv6Enabled
TRACE[time]:Exiting set_ipv6_enabled:<>
