--TEST--
A number that outgrows its type is reported.
--FILE--
<?php
include 'scripted_platform.inc';
planted_signed_overflow();
echo "done\n";
--EXPECT--
done
