--TEST--
A flag file that is there but may not be read does not count, neither for IPv6 nor for its DHCP.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
append_to(IPV6_DHCP_FILE, '');
chmod(IPV6_ENABLED_FILE, 0);
chmod(IPV6_DHCP_FILE, 0);
append_to(platform_file('unprivileged.php'),
          '<?php include "scripted_platform.inc"; show(is_ipv6_enabled()); show(is_ipv6_dhcp_enabled()); show_transcript();');
echo shell_exec('setpriv --inh-caps=-all --bounding-set=-all ' . getenv('SCRIPTED_PLATFORM_PHP') .
                ' -d include_path=' . getenv('SCRIPTED_PLATFORM') . ' ' . platform_file('unprivileged.php'));
--EXPECT--
false
false
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
TRACE[time]:Entering is_ipv6_dhcp_enabled:<>
TRACE[time]:IPv6 DHCP was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_dhcp_enabled:<>
