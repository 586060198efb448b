--TEST--
A page's information block is one table with one header row.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
append_to(platform_file('information.php'), '<?php phpinfo(INFO_MODULES);');
$page = shell_exec(getenv('SCRIPTED_PLATFORM_CGI') . ' -q ' . platform_file('information.php'));
preg_match('|<h2>.*>network</a></h2>\s*(.*?)<h2>|s', $page, $block);
$tags = preg_split('/(<[^>]*>)\s*/', trim($block[1]), -1, PREG_SPLIT_DELIM_CAPTURE | PREG_SPLIT_NO_EMPTY);
foreach ($tags as $tag) {
  echo preg_replace('/^<(\w+) .*>$/', '<$1>', trim($tag)), "\n"; // each engine has attributes of its own
}
--EXPECT--
<table>
<tr>
<th>
network support
</th>
<th>
enabled
</th>
</tr>
</table>
