--TEST--
Two threads that change the same number without a lock are reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_race();
echo "done\n";
--EXPECT--
done
