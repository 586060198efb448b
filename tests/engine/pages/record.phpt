--TEST--
The record is the engine's, byte by byte: 72 of them, with the 27 functions in their order.
--FILE--
<?php
echo module_record();
--EXPECT--
0+2 72
4+4 20020429
8+1 0
9+1 0
12+4 "network"
16+4 functions
  get_network_configuration_ipv4
  set_network_configuration_ipv4
  get_network_configuration_ipv6
  set_network_configuration_ipv6
  is_ipv6_enabled
  set_ipv6_enabled
  is_ipv6_static_enabled
  is_stateless_enabled
  set_stateless_enabled
  is_ipv6_dhcp_enabled
  set_ipv6_dhcp_enabled
  get_all_ipv6_addresses
  get_network_dns
  set_network_dns
  get_network_hostname
  set_network_hostname
  get_ssl_settings
  set_ssl_settings
  get_snmp_settings
  set_snmp_settings
  restart_snmp
  get_snmp_trap_regs
  create_snmp_trap_reg
  delete_snmp_trap_reg
  get_fw_settings
  set_eth2_port_settings
  get_eth2_port_settings
  end
20+4 callback answers 0
24+4 callback answers 0
28+4 callback answers 0
32+4 callback answers 0
36+4 information page
40+4 "0.1"
44+4 0
48+4 0
52+4 0
56+4 0
60+1 0
64+4 0
68+4 0
