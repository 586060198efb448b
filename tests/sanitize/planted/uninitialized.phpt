--TEST--
A decision by what nobody has written is reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_uninitialized();
echo "done\n";
--EXPECT--
done
