--TEST--
When a directory stands in the log's place, the log is lost in silence.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
unlink(TRACE_LOG);
mkdir(TRACE_LOG);
show(get_network_hostname());
show_transcript();
--EXPECT--
"library"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
