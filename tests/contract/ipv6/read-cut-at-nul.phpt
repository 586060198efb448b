--TEST--
The prefix, also in the summary, ends at its first NUL; the other fields and the summary's two line ends stay.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array("6\0004", "\00064", "64\0") as $prefix) {
  answer(IPV6 . '-g static', exits(0), "2001:db8::10/$prefix?2001:db8::1");
  show(get_network_configuration_ipv6(new Session()));
  echo substr(strstr(masked_transcript(), 'TRACE[time]:getIPv6'), 0, -strlen("thread handle released\n"));
  show_lines('/^report|Output/');
}
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "2001:db8:0:0:0:0:0:1", prefix: "6"}
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 2001:db8:0:0:0:0:0:10, GW: 2001:db8:0:0:0:0:0:1, prefix: 6

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
TRACE[time]:Output = :<2001:db8::10/6>
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "2001:db8:0:0:0:0:0:1", prefix: ""}
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 2001:db8:0:0:0:0:0:10, GW: 2001:db8:0:0:0:0:0:1, prefix: 

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
TRACE[time]:Output = :<2001:db8::10/>
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "2001:db8:0:0:0:0:0:1", prefix: "64"}
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 2001:db8:0:0:0:0:0:10, GW: 2001:db8:0:0:0:0:0:1, prefix: 64

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
TRACE[time]:Output = :<2001:db8::10/64>
