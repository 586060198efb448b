--TEST--
The first argument has to be an object; the others are not looked at before it.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_network_configuration_ipv4('admin'));
show(set_network_configuration_ipv4('admin', new Session()));
show(get_network_configuration_ipv6('admin'));
show(set_network_configuration_ipv6('admin', new Session()));
show(set_ipv6_enabled('admin', true));
show(set_stateless_enabled('admin', true));
show(set_ipv6_dhcp_enabled('admin', true));
show(get_network_dns('admin'));
show(set_network_dns('admin', new Session()));
show(set_network_hostname('admin', 'text'));
show(get_ssl_settings('admin'));
show(set_ssl_settings('admin', true));
show(get_snmp_settings('admin'));
show(set_snmp_settings('admin', new Session()));
show(restart_snmp('admin'));
show(get_snmp_trap_regs('admin'));
show(create_snmp_trap_reg('admin', 1, 'text', 'text'));
show(delete_snmp_trap_reg('admin', 'text'));
show(get_fw_settings('admin'));
show(set_eth2_port_settings('admin', 1, 1, 1));
show(get_eth2_port_settings('admin'));
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
Warning: get_network_configuration_ipv4() expects parameter 1 to be object, string given
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() expects parameter 1 to be object, string given
TRACE[time]:Entering get_network_configuration_ipv6:<>
Warning: get_network_configuration_ipv6() expects parameter 1 to be object, string given
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() expects parameter 1 to be object, string given
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() expects parameter 1 to be object, string given
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() expects parameter 1 to be object, string given
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() expects parameter 1 to be object, string given
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() expects parameter 1 to be object, string given
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() expects parameter 1 to be object, string given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects parameter 1 to be object, string given
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() expects parameter 1 to be object, string given
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() expects parameter 1 to be object, string given
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() expects parameter 1 to be object, string given
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() expects parameter 1 to be object, string given
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() expects parameter 1 to be object, string given
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() expects parameter 1 to be object, string given
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() expects parameter 1 to be object, string given
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() expects parameter 1 to be object, string given
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() expects parameter 1 to be object, string given
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() expects parameter 1 to be object, string given
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() expects parameter 1 to be object, string given
