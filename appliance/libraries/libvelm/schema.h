// The tables of the management database, as the way from each version to the next.
#pragma once

#include <vector>

namespace Velm {

// Step i leads from version i to version i + 1; an empty database has version 0. A step that has ever
// been released stays as it is: what changes is a further step.
const std::vector<const char*>& SchemaSteps();

}  // namespace Velm
