--TEST--
A write behind the end of a block is reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_overflow();
echo "done\n";
--EXPECT--
done
