--TEST--
A page that does nothing wrong is not reported.
--FILE--
<?php
include 'scripted_platform.inc';
show(function_exists('planted_overflow'));
--EXPECT--
true
