--TEST--
A block that nobody knows any more is reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_leak();
echo "done\n";
--EXPECT--
done
