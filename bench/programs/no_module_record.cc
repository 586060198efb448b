// The host of the appliance's engine looks at the module's record byte by byte, as a 32-bit processor has it.
// For the measurements on this processor nobody asks for that.
#include "module_record.h"

std::string moduleRecord(zend_module_entry*) { return ""; }
std::string informationPage(zend_module_entry*) { return ""; }
