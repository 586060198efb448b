--TEST--
A write behind the end of a block of the engine is reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_engine_overflow();
echo "done\n";
--EXPECT--
done
