--TEST--
An argument behind the session of a type that the engine does not convert leaves the entry trace only, a warning and null.
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
Warning: set_network_configuration_ipv4(): Argument #2 ($settings) must be of type object, string given
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6(): Argument #2 ($settings) must be of type object, string given
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled(): Argument #2 ($enabled) must be of type bool, array given
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled(): Argument #2 ($enabled) must be of type bool, array given
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled(): Argument #2 ($enabled) must be of type bool, array given
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns(): Argument #2 ($settings) must be of type object, string given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #2 ($name) must be of type string, Session given
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings(): Argument #2 ($enabled) must be of type bool, array given
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings(): Argument #2 ($settings) must be of type object, string given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg(): Argument #2 ($transport) must be of type int, string given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg(): Argument #3 ($ip) must be of type string, Session given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg(): Argument #4 ($port) must be of type string, Session given
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg(): Argument #2 ($id) must be of type string, Session given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings(): Argument #2 ($auto_negotiate) must be of type int, string given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings(): Argument #3 ($speed) must be of type int, string given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings(): Argument #4 ($duplex) must be of type int, string given
