// The count behind a development implementation of an interface; the object goes with its last
// reference.
#pragma once

#include <atomic>

#include "platform/Interface.h"

namespace TarnAbstract {

template <class Interface>
class ReferenceCounted : public Interface {
 public:
  ReferenceCounted() = default;
  ReferenceCounted(const ReferenceCounted&) = delete;
  ReferenceCounted& operator=(const ReferenceCounted&) = delete;

  void TakeReference() override { references_.fetch_add(1, std::memory_order_relaxed); }
  void DropReference() override {
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 protected:
  virtual ~ReferenceCounted() = default;

 private:
  std::atomic<unsigned int> references_{0};
};

}  // namespace TarnAbstract
