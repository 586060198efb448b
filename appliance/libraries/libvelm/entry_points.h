// How the appliance's own libraries reach the management services. Objects may be taken and used by any
// number of threads and processes at once; each operation is complete in itself.
#pragma once

#include <string>

#include "management/IConnectivity.h"
#include "management/IMgmtAppConfig.h"
#include "management/IStorageLibrary.h"
#include "platform/sp.h"

namespace Velm {

// Nothing is opened yet: an operation that cannot reach the settings answers Failed and says why on
// standard error. Empty only when there is no memory for the object.
// user: on whose behalf changes are made, for the audit; may be empty.
TarnAbstract::sp<IMgmtAppConfig> openAppConfig(const std::string& user);
TarnAbstract::sp<IConnectivity> openConnectivity();
TarnAbstract::sp<Library::IStorageLibrary> openStorageLibrary();

}  // namespace Velm
