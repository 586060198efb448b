// The functions that a page can call, in the order of the module's table.
#pragma once

#include "page_values.h"

// clang-format off
#define EACH_HANDLER(DO) \
  DO(get_network_configuration_ipv4) \
  DO(set_network_configuration_ipv4) \
  DO(get_network_configuration_ipv6) \
  DO(set_network_configuration_ipv6) \
  DO(is_ipv6_enabled) \
  DO(set_ipv6_enabled) \
  DO(is_ipv6_static_enabled) \
  DO(is_stateless_enabled) \
  DO(set_stateless_enabled) \
  DO(is_ipv6_dhcp_enabled) \
  DO(set_ipv6_dhcp_enabled) \
  DO(get_all_ipv6_addresses) \
  DO(get_network_dns) \
  DO(set_network_dns) \
  DO(get_network_hostname) \
  DO(set_network_hostname) \
  DO(get_ssl_settings) \
  DO(set_ssl_settings) \
  DO(get_snmp_settings) \
  DO(set_snmp_settings) \
  DO(restart_snmp) \
  DO(get_snmp_trap_regs) \
  DO(create_snmp_trap_reg) \
  DO(delete_snmp_trap_reg) \
  DO(get_fw_settings) \
  DO(set_eth2_port_settings) \
  DO(get_eth2_port_settings)
// clang-format on

#define DECLARE(name) HANDLER(name);
EACH_HANDLER(DECLARE)
#undef DECLARE

// Entry points of the workers; each owns and frees the block it is handed.
#define EXPORTED_WORKER extern "C" __attribute__((visibility("default"))) void*
EXPORTED_WORKER set_network_ipv4(void* block);
EXPORTED_WORKER set_network_ipv6(void* block);
