// Connectivity of the appliance. The module only holds handles to it.
#pragma once

#include "platform/Interface.h"

namespace Velm {

class IConnectivity : public virtual TarnAbstract::IInterface {
 protected:
  ~IConnectivity() = default;
};

}  // namespace Velm
