// The management services behind the proxy: every operation is recorded and answers as the test says.
#include <cstdint>
#include <cstring>
#include <string>

#include "answers.h"
#include "libtarn/string_access.h"
#include "libvelm/trap_registration_access.h"
#include "platform/Threading.h"
#include "reference_count.h"
#include "utility/StorageLibraryProxy.h"
#include "utility/getNetworkSettings.h"
#include "utility/page_properties.h"
#include "utility/platform_texts.h"

using TarnAbstract::GUID;
using TarnAbstract::IThread;
using TarnAbstract::List;
using TarnAbstract::Result;
using TarnAbstract::sp;
using TarnAbstract::String;
using TarnAbstract::StringAccess;
using Velm::eSNMPVersion;
using Velm::eTransportType;
using Velm::IConnectivity;
using Velm::IMgmtAppConfig;
using Velm::TrapRegistration;
using Velm::Library::IStorageLibrary;

namespace {

std::string quoted(const char* text) { return '"' + shown(text) + '"'; }
std::string shownFlag(bool flag) { return flag ? "true" : "false"; }

// The transport, the address and the port of a registration.
std::string shownReceiver(const TrapRegistration& registration) {
  const String address = registration.getIPAddress();
  return std::to_string(registration.getTransport()) + ' ' + quoted(tarnStringToCString(address)) + ' ' +
         std::to_string(registration.getPort());
}

// The registration whose identifier, transport, address and port begin at the position.
TrapRegistration registrationOf(const Answer& answer, std::size_t position) {
  TrapRegistration registration;
  std::string identifier = word(answer, position);
  Velm::TrapRegistrationAccess::SetTrapID(registration, cStringToGUID(identifier.data()));
  registration.setTransport(static_cast<eTransportType>(number(word(answer, position + 1))));
  String address;
  StringAccess::Assign(address, word(answer, position + 2).c_str());
  registration.setIPAddress(address);
  registration.setPort(static_cast<unsigned int>(number(word(answer, position + 3))));
  return registration;
}

// What the management services see of a list: they share its memory with the module.
struct ListInMemory {
  sp<TarnAbstract::IHeap> heap;
  std::uint32_t count;
};

// The list then counts an element that is not there; where a page is full, there is no place for it either.
void loseElement(List<TrapRegistration, 4>& registrations) {
  ++reinterpret_cast<ListInMemory&>(registrations).count;
}

// The first word of an answer is the operation's result code, the others are what it gives. The line of the
// transcript shows the question, and behind an arrow the whole answer.
Answer answerToOperation(const std::string& name, const std::string& arguments) {
  const std::optional<Answer> answer = answerTo(name);
  if (!answer) {
    record("unexpected: the test has no answer to " + name + '(' + arguments + ')');
    return {"Failed"};
  }
  std::string line = name + '(' + arguments + ") -> " + shownCode(resultCode(word(*answer, 0)));
  for (std::size_t i = 1; i < answer->size(); ++i) line += ' ' + shown((*answer)[i]);
  record(line);
  return *answer;
}

// Services whose compiler has truth values of another kind write the number as it is, as a byte or as a word.
void writeNumber(void* place, unsigned long number, const std::string& width) {
  const auto byte = static_cast<std::uint8_t>(number);
  const auto word = static_cast<std::uint32_t>(number);
  if (width == "byte") {
    std::memcpy(place, &byte, sizeof(byte));
  } else if (width == "word") {
    std::memcpy(place, &word, sizeof(word));
  } else {
    record("unexpected: the test's answer has a number of the width \"" + width + '"');
  }
}

Result::Code resultOf(const Answer& answer) { return resultCode(word(answer, 0)); }

class ThreadDouble : public ReferenceCount<IThread> {
 public:
  ThreadDouble() : ReferenceCount("thread") {}
};

class ConnectivityDouble : public ReferenceCount<IConnectivity> {
 public:
  ConnectivityDouble() : ReferenceCount("IConnectivity") {}
};

class StorageLibraryDouble : public ReferenceCount<IStorageLibrary> {
 public:
  StorageLibraryDouble() : ReferenceCount("IStorageLibrary") {}
  Result::Code checkAddressConflict(String& ipAddress) override {
    return resultOf(
        answerToOperation("IStorageLibrary.checkAddressConflict", quoted(tarnStringToCString(ipAddress))));
  }
};

// Lists: each word behind the result code is an element; a trap registration takes four words, one that is
// counted but not there the word "lost".
class AppConfigDouble : public ReferenceCount<IMgmtAppConfig> {
 public:
  AppConfigDouble() : ReferenceCount("IMgmtAppConfig") {}

  Result::Code setSNMPVersions(const List<eSNMPVersion, 4>& versions) override {
    std::string numbers;
    for (unsigned int i = 0; i < versions.Size(); ++i) {
      eSNMPVersion version = {};
      versions.Item(i, version);
      numbers += (i == 0 ? "" : " ") + std::to_string(version);
    }
    return ask("setSNMPVersions", numbers);
  }

  Result::Code getSNMPVersions(List<eSNMPVersion, 4>& versions) override {
    const Answer answer = answerToOperation("IMgmtAppConfig.getSNMPVersions", "");
    for (std::size_t i = 1; i < answer.size(); ++i) {
      versions.Append(static_cast<eSNMPVersion>(number(answer[i])));
    }
    return resultOf(answer);
  }

  Result::Code setSSLEnabled(bool enabled) override { return ask("setSSLEnabled", shownFlag(enabled)); }

  Result::Code getSSLEnabled(std::uint32_t& enabled) override {
    const Answer answer = answerToOperation("IMgmtAppConfig.getSSLEnabled", "");
    if (answer.size() > 1) enabled = static_cast<std::uint32_t>(number(answer[1]));
    return resultOf(answer);
  }

  Result::Code createTrapRegistration(TrapRegistration& registration) override {
    if (!(registration.getTrapID() == GUID())) record("unexpected: a new registration has an identifier");
    return ask("createTrapRegistration", shownReceiver(registration));
  }

  Result::Code deleteTrapRegistration(GUID& trapID) override {
    return ask("deleteTrapRegistration", guidToCString(trapID));
  }

  Result::Code getTrapRegistrations(List<TrapRegistration, 4>& registrations) override {
    const Answer answer = answerToOperation("IMgmtAppConfig.getTrapRegistrations", "");
    std::size_t position = 1;
    while (position < answer.size()) {
      if (answer[position] == "lost") {
        loseElement(registrations);
        position += 1;
      } else {
        registrations.Append(registrationOf(answer, position));
        position += 4;
      }
    }
    return resultOf(answer);
  }

  Result::Code restartSNMP() override { return ask("restartSNMP", ""); }

  Result::Code setReadCommunity(String& community) override {
    return ask("setReadCommunity", quoted(tarnStringToCString(community)));
  }

  Result::Code getReadCommunity(String& community) override {
    const Answer answer = answerToOperation("IMgmtAppConfig.getReadCommunity", "");
    if (answer.size() > 1) StringAccess::Assign(community, answer[1].c_str());
    return resultOf(answer);
  }

  Result::Code setAuthTrapsEnabled(bool enabled) override {
    return ask("setAuthTrapsEnabled", shownFlag(enabled));
  }

  Result::Code getAuthTrapsEnabled(bool& enabled) override {
    const Answer answer = answerToOperation("IMgmtAppConfig.getAuthTrapsEnabled", "");
    if (answer.size() > 2) {
      writeNumber(&enabled, number(answer[1]), answer[2]);
    } else if (answer.size() > 1) {
      enabled = number(answer[1]) != 0;
    }
    return resultOf(answer);
  }

 private:
  static Result::Code ask(const std::string& operation, const std::string& arguments) {
    return resultOf(answerToOperation("IMgmtAppConfig." + operation, arguments));
  }
};

// The answer "empty" to an interface's name makes its handles empty.
template <class Interface, class Double>
sp<Interface> handle(const std::string& name) {
  const std::optional<Answer> answer = answerTo(name);
  const bool empty = answer && word(*answer, 0) == "empty";
  record(name + (empty ? " handle taken, empty" : " handle taken"));
  return sp<Interface>(empty ? nullptr : new Double);
}

}  // namespace

sp<IThread> TarnAbstract::TarnThreading::CurrentThread() { return handle<IThread, ThreadDouble>("thread"); }

StorageLibraryProxy* StorageLibraryProxy::getInstance() {
  if (answerTo("instances")) record("proxy asked for");
  static StorageLibraryProxy proxy;
  return &proxy;
}

void StorageLibraryProxy::setSession(zval* session) {
  char user[] = "user";
  const char* const name = get_string_property(session, user);
  record("session of " + (name == nullptr ? "nobody" : quoted(name)));
}

sp<IMgmtAppConfig> StorageLibraryProxy::getAppMgmtConfigInterface() {
  return handle<IMgmtAppConfig, AppConfigDouble>("IMgmtAppConfig");
}

sp<IConnectivity> StorageLibraryProxy::getConnectivityMgmtInterface() {
  return handle<IConnectivity, ConnectivityDouble>("IConnectivity");
}

sp<IStorageLibrary> StorageLibraryProxy::getStorageLibraryInterface() {
  return handle<IStorageLibrary, StorageLibraryDouble>("IStorageLibrary");
}

// The answer is names and values in turn, all added as string properties.
void getNetworkSettings(zval* object) {
  record("getNetworkSettings");
  const std::optional<Answer> answer = answerTo("getNetworkSettings");
  if (!answer) {
    record("unexpected: the test has no answer to getNetworkSettings");
    return;
  }
  for (std::size_t i = 0; i < answer->size(); i += 2) {
    add_property_string_q(object, word(*answer, i).c_str(), word(*answer, i + 1).c_str(), 1);
  }
}
