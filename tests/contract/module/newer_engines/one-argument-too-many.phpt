--TEST--
With one argument too many, each function that parses any leaves its entry trace only, warns and returns null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_network_configuration_ipv4(new Session(), 1));
show(set_network_configuration_ipv4(new Session(), new Session(), 1));
show(get_network_configuration_ipv6(new Session(), 1));
show(set_network_configuration_ipv6(new Session(), new Session(), 1));
show(set_ipv6_enabled(new Session(), true, 1));
show(set_stateless_enabled(new Session(), true, 1));
show(set_ipv6_dhcp_enabled(new Session(), true, 1));
show(get_network_dns(new Session(), 1));
show(set_network_dns(new Session(), new Session(), 1));
show(set_network_hostname(new Session(), 'text', 1));
show(get_ssl_settings(new Session(), 1));
show(set_ssl_settings(new Session(), true, 1));
show(get_snmp_settings(new Session(), 1));
show(set_snmp_settings(new Session(), new Session(), 1));
show(restart_snmp(new Session(), 1));
show(get_snmp_trap_regs(new Session(), 1));
show(create_snmp_trap_reg(new Session(), 1, 'text', 'text', 1));
show(delete_snmp_trap_reg(new Session(), 'text', 1));
show(get_fw_settings(new Session(), 1));
show(set_eth2_port_settings(new Session(), 1, 1, 1, 1));
show(get_eth2_port_settings(new Session(), 1));
show_transcript();
--EXPECT--
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
null
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() expects exactly 1 argument, 2 given
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() expects exactly 2 arguments, 3 given
TRACE[time]:Entering get_network_configuration_ipv6:<>
Warning: get_network_configuration_ipv6() expects exactly 1 argument, 2 given
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() expects exactly 2 arguments, 3 given
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() expects exactly 2 arguments, 3 given
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() expects exactly 2 arguments, 3 given
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() expects exactly 2 arguments, 3 given
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() expects exactly 1 argument, 2 given
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() expects exactly 2 arguments, 3 given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects exactly 2 arguments, 3 given
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() expects exactly 1 argument, 2 given
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() expects exactly 2 arguments, 3 given
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() expects exactly 1 argument, 2 given
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() expects exactly 2 arguments, 3 given
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() expects exactly 1 argument, 2 given
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() expects exactly 1 argument, 2 given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() expects exactly 4 arguments, 5 given
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() expects exactly 2 arguments, 3 given
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() expects exactly 1 argument, 2 given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() expects exactly 4 arguments, 5 given
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() expects exactly 1 argument, 2 given
