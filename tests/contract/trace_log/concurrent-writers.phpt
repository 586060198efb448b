--TEST--
Lines of processes that write at the same time do not mix.
--FILE--
<?php
include 'scripted_platform.inc';
unlink(TRACE_LOG);
append_to(platform_file('ask.php'), '<?php for ($i = 0; $i < 100; ++$i) get_network_hostname();');
$processes = array();
for ($i = 0; $i < 8; ++$i) {
  mkdir(platform_file("of$i"));
  $words = array(rawurlencode(IPV4 . '-g host'), exits(0), str_repeat(chr(ord('a') + $i), 5000));
  append_to(platform_file("of$i/answers"), implode(' ', $words) . "\n");
  $command = 'SCRIPTED_PLATFORM=' . platform_file("of$i") . ' LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so ' .
             getenv('SCRIPTED_PLATFORM_PHP') . ' ' . platform_file('ask.php');
  $processes[] = popen("$command 2>/dev/null", 'r');
}
for ($i = 0; $i < 8; ++$i) pclose($processes[$i]); // not of a copy: that would not wait in every engine
$whole = preg_grep('/^TRACE\[[^]]*\]:(Entering get_network_hostname:<>|Output = :<(a+|b+|c+|d+|e+|f+|g+|h+)>|Exiting get_network_hostname:<>)$/',
                   file(TRACE_LOG));
echo count($whole), ' whole lines of ', count(file(TRACE_LOG)), "\n";
echo count(preg_grep('/<.{5000}>$/', $whole)), " with an output\n";
--EXPECT--
2400 whole lines of 2400
800 with an output
