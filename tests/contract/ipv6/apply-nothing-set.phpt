--TEST--
Of an object without any property, static addressing is removed; of one with the flag alone, the separators go to the script, which decides.
--FILE--
<?php
include 'scripted_platform.inc';
class FlagAlone {
  var $staticEnabled = '1';
}
answer(IPV6 . '-r ', exits(0));
answer(IPV6 . '-c -s /?', exits(2));
set_network_configuration_ipv6(new Session(), new stdClass());
forget_transcript();
run_thread();
show_transcript();
set_network_configuration_ipv6(new Session(), new FlagAlone());
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Disabling IPv6 Static addresses:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::</?>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s /?
TRACE[time]:Failed to enable static IPv6 address: :<512>
