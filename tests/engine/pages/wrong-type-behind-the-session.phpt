--TEST--
An argument behind the session that the engine cannot convert warns with its position and the type it should have.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_network_configuration_ipv4(new Session(), 'text'));
show(set_network_configuration_ipv6(new Session(), 'text'));
show(set_ipv6_enabled(new Session(), array()));
show(set_stateless_enabled(new Session(), array()));
show(set_ipv6_dhcp_enabled(new Session(), array()));
show(set_network_dns(new Session(), 'text'));
show(set_network_hostname(new Session(), new Session()));
show(set_ssl_settings(new Session(), array()));
show(set_snmp_settings(new Session(), 'text'));
show(create_snmp_trap_reg(new Session(), 'ten', 'text', 'text'));
show(create_snmp_trap_reg(new Session(), 1, new Session(), 'text'));
show(create_snmp_trap_reg(new Session(), 1, 'text', new Session()));
show(delete_snmp_trap_reg(new Session(), new Session()));
show(set_eth2_port_settings(new Session(), 'ten', 1, 1));
show(set_eth2_port_settings(new Session(), 1, 'ten', 1));
show(set_eth2_port_settings(new Session(), 1, 1, 'ten'));
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
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() expects parameter 2 to be object, string given
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() expects parameter 2 to be object, string given
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() expects parameter 2 to be boolean, array given
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() expects parameter 2 to be boolean, array given
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() expects parameter 2 to be boolean, array given
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() expects parameter 2 to be object, string given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects parameter 2 to be string, object given
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() expects parameter 2 to be boolean, array given
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() expects parameter 2 to be object, string given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() expects parameter 2 to be long, string given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() expects parameter 3 to be string, object given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() expects parameter 4 to be string, object given
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() expects parameter 2 to be string, object given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() expects parameter 2 to be long, string given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() expects parameter 3 to be long, string given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() expects parameter 4 to be long, string given
