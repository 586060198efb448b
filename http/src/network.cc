// The module as the interpreter sees it: record, life cycle, information page. Its functions are listed in
// handlers.h.
#include <iostream>  // the standard streams are up before the module's own constant is built

#include "platform/String.h"

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include "engine_of_module.h"
// clang-format on

namespace {

// Built when the module is loaded and destroyed when it goes; no function reads it.
const TarnAbstract::String primaryPortName("Primary Ethernet Connector");

}  // namespace

PHP_MINIT_FUNCTION(network) { return SUCCESS; }
PHP_MSHUTDOWN_FUNCTION(network) { return SUCCESS; }
PHP_RINIT_FUNCTION(network) { return SUCCESS; }
PHP_RSHUTDOWN_FUNCTION(network) { return SUCCESS; }

PHP_MINFO_FUNCTION(network) { printInformation("network support", "enabled"); }

static zend_module_entry network_module_entry = {
    STANDARD_MODULE_HEADER,   const_cast<char*>("network"), moduleFunctions,        PHP_MINIT(network),
    PHP_MSHUTDOWN(network),   PHP_RINIT(network),           PHP_RSHUTDOWN(network), PHP_MINFO(network),
    const_cast<char*>("0.1"), STANDARD_MODULE_PROPERTIES,
};

extern "C" __attribute__((visibility("default"))) zend_module_entry* get_module() {
  return &network_module_entry;
}
