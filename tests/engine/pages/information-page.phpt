--TEST--
The information page has one table with one header row of two columns.
--FILE--
<?php
echo information_page();
--EXPECT--
table
header [network support] [enabled]
end of table
