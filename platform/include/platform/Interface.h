// The reference-counted base of every interface object of the platform. Interfaces derive from it
// virtually, so that an object that offers several of them has one count. The two operations keep
// their positions: handles call the first to take a reference and the second to drop one.
//
// An assumption that nothing here can prove: the vendor's base has these two operations and no other, and no
// data. With more of them, every operation of every interface would stand further back in its table than we
// call it. The program verify (http/verify/) says on a device whether that is so.
#pragma once

namespace TarnAbstract {

class IInterface {
 public:
  virtual void TakeReference() = 0;
  virtual void DropReference() = 0;

 protected:
  ~IInterface() = default;
};

}  // namespace TarnAbstract

// Holds the place of an operation that the module never calls, so that the operations behind it keep
// their positions.
#define PLATFORM_RESERVED_SLOT(number) \
  virtual void ReservedSlot##number() {}
