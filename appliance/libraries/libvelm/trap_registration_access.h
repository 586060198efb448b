// A trap registration from the inside: only the management services give identifiers.
#pragma once

#include "management/TrapRegistration.h"

namespace Velm {

class TrapRegistrationAccess {
 public:
  static void SetTrapID(TrapRegistration& registration, const TarnAbstract::GUID& trapID) {
    registration.trapID_ = trapID;
  }
};

}  // namespace Velm
