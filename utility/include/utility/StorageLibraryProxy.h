// The way from a request to the appliance's management services. One per process.
#pragma once

#include "management/IConnectivity.h"
#include "management/IMgmtAppConfig.h"
#include "management/IStorageLibrary.h"
#include "platform/sp.h"
#include "utility/page_value_types.h"

class StorageLibraryProxy {
 public:
  // Owned by the library; never null, never freed by a caller.
  static StorageLibraryProxy* getInstance();

  // On whose behalf the services are asked from now on; the object is a page's session object.
  void setSession(zval* session);

  // Each may be an empty handle when the service is not there.
  TarnAbstract::sp<Velm::IMgmtAppConfig> getAppMgmtConfigInterface();
  TarnAbstract::sp<Velm::IConnectivity> getConnectivityMgmtInterface();
  TarnAbstract::sp<Velm::Library::IStorageLibrary> getStorageLibraryInterface();
};
