--TEST--
A function that takes arguments and gets none warns in the engine's words, does nothing and returns null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_network_configuration_ipv4());
show(set_network_configuration_ipv4());
show(get_network_configuration_ipv6());
show(set_network_configuration_ipv6());
show(set_ipv6_enabled());
show(set_stateless_enabled());
show(set_ipv6_dhcp_enabled());
show(get_network_dns());
show(set_network_dns());
show(set_network_hostname());
show(get_ssl_settings());
show(set_ssl_settings());
show(get_snmp_settings());
show(set_snmp_settings());
show(restart_snmp());
show(get_snmp_trap_regs());
show(create_snmp_trap_reg());
show(delete_snmp_trap_reg());
show(get_fw_settings());
show(set_eth2_port_settings());
show(get_eth2_port_settings());
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
Warning: get_network_configuration_ipv4() expects exactly 1 parameter, 0 given
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() expects exactly 2 parameters, 0 given
TRACE[time]:Entering get_network_configuration_ipv6:<>
Warning: get_network_configuration_ipv6() expects exactly 1 parameter, 0 given
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() expects exactly 2 parameters, 0 given
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() expects exactly 2 parameters, 0 given
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() expects exactly 2 parameters, 0 given
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() expects exactly 2 parameters, 0 given
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() expects exactly 1 parameter, 0 given
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() expects exactly 2 parameters, 0 given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects exactly 2 parameters, 0 given
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() expects exactly 1 parameter, 0 given
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() expects exactly 2 parameters, 0 given
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() expects exactly 1 parameter, 0 given
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() expects exactly 2 parameters, 0 given
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() expects exactly 1 parameter, 0 given
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() expects exactly 1 parameter, 0 given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() expects exactly 4 parameters, 0 given
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() expects exactly 2 parameters, 0 given
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() expects exactly 1 parameter, 0 given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() expects exactly 4 parameters, 0 given
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() expects exactly 1 parameter, 0 given
