--TEST--
A read of a block that has been given back is reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_use_after_free();
echo "done\n";
--EXPECT--
done
