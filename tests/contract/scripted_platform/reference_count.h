// The references on a double of an interface object, recorded where they end.
#pragma once

#include <atomic>

#include "transcript.h"

// Objects are never deleted: a reference that is dropped once too often shall be recorded, not crash. Each
// knows the one made before it, so that a leak checker, too, takes none for lost.
template <class Interface>
class ReferenceCount : public Interface {
 public:
  void TakeReference() override { ++references_; }
  void DropReference() override {
    const int left = --references_;
    if (left == 0) record(std::string(name_) + " handle released");
    if (left < 0) record("unexpected: " + std::string(name_) + " handle released too often");
  }

 protected:
  explicit ReferenceCount(const char* name) : name_(name), previous_(newest_.exchange(this)) {}
  ~ReferenceCount() = default;

 private:
  static inline std::atomic<ReferenceCount*> newest_{nullptr};

  const char* name_;
  [[maybe_unused]] ReferenceCount* previous_;
  std::atomic<int> references_{0};
};
