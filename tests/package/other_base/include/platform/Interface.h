// The base as it could be on a device: with two operations more than we count on.
#pragma once

namespace TarnAbstract {

class IInterface {
 public:
  virtual void TakeReference() = 0;
  virtual void DropReference() = 0;
  virtual void FindOther() {}
  virtual void FindMore() {}

 protected:
  ~IInterface() = default;
};

}  // namespace TarnAbstract

#define PLATFORM_RESERVED_SLOT(number) \
  virtual void ReservedSlot##number() {}
