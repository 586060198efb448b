// Handle to an interface object: exactly one pointer wide, holding one reference while it is not empty.
#pragma once

namespace TarnAbstract {

template <class T>
class sp {
 public:
  // An empty handle when object is null; otherwise takes a reference of its own.
  explicit sp(T* object = nullptr) : object_(object) { TakeReference(object_); }
  sp(const sp& other) : object_(other.object_) { TakeReference(object_); }
  ~sp() { DropReference(object_); }

  // The new reference is taken before the old one is dropped: the two may be the same object.
  // NOLINTNEXTLINE(bugprone-unhandled-self-assignment,cert-oop54-cpp): that order makes self-assignment safe
  sp& operator=(const sp& other) {
    T* const former = object_;
    TakeReference(other.object_);
    object_ = other.object_;
    DropReference(former);
    return *this;
  }

  void ReleaseReference() {
    DropReference(object_);
    object_ = nullptr;
  }

  bool operator==(const sp& other) const { return object_ == other.object_; }
  T* operator->() const { return object_; }
  bool IsValid() const { return object_ != nullptr; }

 private:
  static void TakeReference(T* object) {
    if (object != nullptr) object->TakeReference();
  }
  static void DropReference(T* object) {
    if (object != nullptr) object->DropReference();
  }

  T* object_;
};

}  // namespace TarnAbstract
