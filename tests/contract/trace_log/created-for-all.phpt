--TEST--
A log file that is created may be read and written by all whom the process's mask lets.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(0, 027) as $mask) {
    answer(IPV4 . '-g host', exits(0), 'library');
    unlink(TRACE_LOG);
    umask($mask);
    get_network_hostname();
    clearstatcache();
    printf("%o\n", fileperms(TRACE_LOG) & 07777);
}
--EXPECT--
666
640
