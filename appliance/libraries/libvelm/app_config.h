// The configuration of the management applications, kept in the management database. Each change is one
// transaction together with its row in the audit; so is a change that is refused, which leaves only that
// row.
#pragma once

#include <functional>
#include <string>

#include "libtarn/reference_counted.h"
#include "libvelm/places.h"
#include "libvelm/store.h"
#include "management/IMgmtAppConfig.h"

namespace Velm {

class AppConfig : public TarnAbstract::ReferenceCounted<IMgmtAppConfig> {
 public:
  // store and places outlive the object.
  AppConfig(Store& store, const Places& places, std::string user);

  TarnAbstract::Result::Code setSNMPVersions(const TarnAbstract::List<eSNMPVersion, 4>& versions) override;
  TarnAbstract::Result::Code getSNMPVersions(TarnAbstract::List<eSNMPVersion, 4>& versions) override;
  TarnAbstract::Result::Code setSSLEnabled(bool enabled) override;
  TarnAbstract::Result::Code getSSLEnabled(std::uint32_t& enabled) override;
  TarnAbstract::Result::Code createTrapRegistration(TrapRegistration& registration) override;
  TarnAbstract::Result::Code deleteTrapRegistration(TarnAbstract::GUID& trapID) override;
  TarnAbstract::Result::Code getTrapRegistrations(
      TarnAbstract::List<TrapRegistration, 4>& registrations) override;
  TarnAbstract::Result::Code restartSNMP() override;
  TarnAbstract::Result::Code setReadCommunity(TarnAbstract::String& community) override;
  TarnAbstract::Result::Code getReadCommunity(TarnAbstract::String& community) override;
  TarnAbstract::Result::Code setAuthTrapsEnabled(bool enabled) override;
  TarnAbstract::Result::Code getAuthTrapsEnabled(bool& enabled) override;

 private:
  // work checks before it changes anything, so that a refusal leaves nothing to undo. values is read
  // when work is done.
  void Change(const char* operation, const std::string& values, const std::function<void(Database&)>& work);
  void StoreSSLEnabled(bool enabled, bool keepsTheModeOfBefore);
  void GoBackToTheModeOfBefore();
  void ForgetTheModeOfBefore();
  std::int64_t ReadInteger(const char* query);

  Store& store_;
  const Places& places_;
  const std::string user_;
};

}  // namespace Velm
