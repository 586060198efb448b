--TEST--
The information page shows one row of two columns, "network support" and "enabled", and nothing more.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(platform_file('information.php'), '<?php phpinfo(INFO_MODULES);');
$page = shell_exec(getenv('SCRIPTED_PLATFORM_PHP') . ' ' . platform_file('information.php'));
preg_match('/^network\s*\n(.*?\n)\n/ms', $page, $block);
echo $block[1];
show_transcript();
--EXPECT--
network support => enabled
