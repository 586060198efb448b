--TEST--
A page's information block is one table with one header row.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
$page = shell_exec('echo "<?php phpinfo(INFO_MODULES);" | php-cgi -q -n -d extension=' . getenv('SCRIPTED_PLATFORM_MODULE'));
preg_match('|<h2>.*>network</a></h2>\n(.*?)<h2>|s', $page, $block);
echo trim($block[1]), "\n";
--EXPECT--
<table>
<tr class="h"><th>network support</th><th>enabled</th></tr>
</table>
