--TEST--
A line whose writing is interrupted is written all the same, once.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
append_to(platform_file('ask.php'), '<?php get_network_hostname();');
shell_exec('strace -f -o ' . platform_file('calls') . ' -P $(readlink ' . TRACE_LOG . ') -e trace=write -e inject=write:error=EINTR:when=1..2 ' .
           '-E LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so ' . getenv('SCRIPTED_PLATFORM_PHP') .
           ' ' . platform_file('ask.php') . ' 2>/dev/null');
echo count(preg_grep('/EINTR.*INJECTED/', file(platform_file('calls')))), " interrupted\n";
show_lines('/^TRACE/');
--EXPECT--
2 interrupted
TRACE[time]:Entering get_network_hostname:<>
TRACE[time]:Output = :<library>
TRACE[time]:Exiting get_network_hostname:<>
