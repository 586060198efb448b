// Threads as the platform knows them. A thread that talks to the management services holds its own
// handle while it does.
#pragma once

#include "platform/Interface.h"
#include "platform/sp.h"

namespace TarnAbstract {

class IThread : public virtual IInterface {
 protected:
  ~IThread() = default;
};

namespace TarnThreading {

sp<IThread> CurrentThread();

}  // namespace TarnThreading
}  // namespace TarnAbstract
