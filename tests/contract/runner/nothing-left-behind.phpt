--TEST--
Many calls leave neither an open descriptor nor a child behind, whether their scripts succeed or not.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
function descriptors() {
  return count(glob('/proc/self/fd/*'));
}
function call_all() {
  foreach (array('echo library', 'exit 1', 'kill -KILL $$') as $body) {
    write_script(IPV4_SCRIPT, $body);
    @get_network_hostname();
    @set_network_hostname(new Session(), 'library-8');
  }
  rename('/usr/bin/cmdwrap', '/usr/bin/cmdwrap.away');
  @get_network_hostname();
  @set_network_hostname(new Session(), 'library-8');
  rename('/usr/bin/cmdwrap.away', '/usr/bin/cmdwrap');
}
call_all();
$before = descriptors();
for ($i = 0; $i < 25; ++$i) call_all();
echo descriptors() - $before, " descriptors more\n";
$me = getmypid();
echo 'children: <', trim(implode('', file("/proc/$me/task/$me/children"))), ">\n";
--EXPECT--
0 descriptors more
children: <>
