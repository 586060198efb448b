--TEST--
Each line is one open for appending, which no child inherits, one write and one close.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
append_to(platform_file('ask.php'), '<?php get_network_hostname();');
shell_exec('strace -f -o ' . platform_file('calls') . ' -e trace=openat,open,write,writev,pwrite64,close,fsync ' .
           '-E LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so ' . getenv('SCRIPTED_PLATFORM_PHP') .
           ' ' . platform_file('ask.php') . ' 2>/dev/null');
$descriptor = null;
foreach (file(platform_file('calls')) as $call) {
  if (preg_match('/open.*php_extension\.log", ([A-Z_|]+).* = (\d+)/', $call, $parts)) {
    $flags = explode('|', $parts[1]);
    sort($flags);
    echo 'open ', implode(' ', $flags), "\n";
    $descriptor = $parts[2];
  } elseif ($descriptor !== null && preg_match("/ (\w+)\($descriptor\b/", $call, $parts)) {
    echo $parts[1], "\n";
    if ($parts[1] == 'close') $descriptor = null;
  }
}
--EXPECT--
open O_APPEND O_CLOEXEC O_CREAT O_WRONLY
write
close
open O_APPEND O_CLOEXEC O_CREAT O_WRONLY
write
close
open O_APPEND O_CLOEXEC O_CREAT O_WRONLY
write
close
