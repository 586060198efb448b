// All network settings of the appliance in one object.
#pragma once

#include "utility/page_value_types.h"

// Adds the settings to an object that has no properties yet. What cannot be read is reported and gets
// the value that stands for "off".
void getNetworkSettings(zval* object);
