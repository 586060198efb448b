#include "platform/Threading.h"

#include "libtarn/reference_counted.h"

namespace TarnAbstract {
namespace {

class Thread : public ReferenceCounted<IThread> {};

}  // namespace

sp<IThread> TarnThreading::CurrentThread() {
  static thread_local const sp<IThread> thread(new Thread);
  return thread;
}

}  // namespace TarnAbstract
