// The module as the interpreter sees it: record, table of functions, life cycle, information page.
#include <php.h>

#include <ext/standard/info.h>
#include <iostream>  // the standard streams are up before the module's own constant is built

#include "handlers.h"
#include "platform/String.h"

#if ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API
#define FUNCTION(name) PHP_FE(name, nullptr)
#else
#include "network_arginfo.h"
#define FUNCTION(name) PHP_FE(name, arginfo_##name)
#endif

namespace {

// Built when the module is loaded and destroyed when it goes; no function reads it.
const TarnAbstract::String primaryPortName("Primary Ethernet Connector");

// clang-format off
zend_function_entry functions[] = {
    FUNCTION(get_network_configuration_ipv4)
    FUNCTION(set_network_configuration_ipv4)
    FUNCTION(get_network_configuration_ipv6)
    FUNCTION(set_network_configuration_ipv6)
    FUNCTION(is_ipv6_enabled)
    FUNCTION(set_ipv6_enabled)
    FUNCTION(is_ipv6_static_enabled)
    FUNCTION(is_stateless_enabled)
    FUNCTION(set_stateless_enabled)
    FUNCTION(is_ipv6_dhcp_enabled)
    FUNCTION(set_ipv6_dhcp_enabled)
    FUNCTION(get_all_ipv6_addresses)
    FUNCTION(get_network_dns)
    FUNCTION(set_network_dns)
    FUNCTION(get_network_hostname)
    FUNCTION(set_network_hostname)
    FUNCTION(get_ssl_settings)
    FUNCTION(set_ssl_settings)
    FUNCTION(get_snmp_settings)
    FUNCTION(set_snmp_settings)
    FUNCTION(restart_snmp)
    FUNCTION(get_snmp_trap_regs)
    FUNCTION(create_snmp_trap_reg)
    FUNCTION(delete_snmp_trap_reg)
    FUNCTION(get_fw_settings)
    FUNCTION(set_eth2_port_settings)
    FUNCTION(get_eth2_port_settings)
    {}
};
// clang-format on

}  // namespace

PHP_MINIT_FUNCTION(network) { return SUCCESS; }
PHP_MSHUTDOWN_FUNCTION(network) { return SUCCESS; }
PHP_RINIT_FUNCTION(network) { return SUCCESS; }
PHP_RSHUTDOWN_FUNCTION(network) { return SUCCESS; }

PHP_MINFO_FUNCTION(network) {
  php_info_print_table_start();
  php_info_print_table_header(2, "network support", "enabled");
  php_info_print_table_end();
}

static zend_module_entry network_module_entry = {
    STANDARD_MODULE_HEADER,     const_cast<char*>("network"), functions,
    PHP_MINIT(network),         PHP_MSHUTDOWN(network),       PHP_RINIT(network),
    PHP_RSHUTDOWN(network),     PHP_MINFO(network),           const_cast<char*>("0.1"),
    STANDARD_MODULE_PROPERTIES,
};

extern "C" __attribute__((visibility("default"))) zend_module_entry* get_module() {
  return &network_module_entry;
}
