// The functions that a page can call, in the order of the module's table.
#pragma once

#include "script_values.h"

HANDLER(get_network_configuration_ipv4);
HANDLER(set_network_configuration_ipv4);
HANDLER(get_network_configuration_ipv6);
HANDLER(set_network_configuration_ipv6);
HANDLER(is_ipv6_enabled);
HANDLER(set_ipv6_enabled);
HANDLER(is_ipv6_static_enabled);
HANDLER(is_stateless_enabled);
HANDLER(set_stateless_enabled);
HANDLER(is_ipv6_dhcp_enabled);
HANDLER(set_ipv6_dhcp_enabled);
HANDLER(get_all_ipv6_addresses);
HANDLER(get_network_dns);
HANDLER(set_network_dns);
HANDLER(get_network_hostname);
HANDLER(set_network_hostname);
HANDLER(get_ssl_settings);
HANDLER(set_ssl_settings);
HANDLER(get_snmp_settings);
HANDLER(set_snmp_settings);
HANDLER(restart_snmp);
HANDLER(get_snmp_trap_regs);
HANDLER(create_snmp_trap_reg);
HANDLER(delete_snmp_trap_reg);
HANDLER(get_fw_settings);
HANDLER(set_eth2_port_settings);
HANDLER(get_eth2_port_settings);

// Entry points of the workers; each owns and frees the block it is handed.
#define EXPORTED_WORKER extern "C" __attribute__((visibility("default"))) void*
EXPORTED_WORKER set_network_ipv4(void* block);
EXPORTED_WORKER set_network_ipv6(void* block);
