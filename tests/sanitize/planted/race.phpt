--TEST--
Two threads that change the same number without a lock are reported.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
planted_race();
echo "done\n";
--EXPECT--
done
