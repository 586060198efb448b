#include "page.h"

#include "libdovan_util/commands_at_once.h"
#include "libdovan_util/property_values.h"
#include "page_values.h"
#include "platform/Result.h"
#include "target.h"
#include "trace_log.h"
#include "utility/Runtime.h"
#include "utility/StorageLibraryProxy.h"
#include "utility/checkResultCode.h"
#include "utility/page_properties.h"

Call call;

zval returnedBy(Handler* handler) {
  zval result;
  handler(2, &result);
  return result;
}

// The engine.

bool parseInto(const ArgumentPlaces& places, int /*argumentCount*/, const char* format) {
  std::size_t index = 0;
  for (; *format != '\0'; ++format) {
    require(*format == 'o' || *format == 's', "objects and texts are all that the handlers here take");
    if (*format == 'o') {
      *static_cast<zval**>(places[index]) = &call.object;
      ++index;
    } else {
      *static_cast<char**>(places[index]) = call.text.data();
      index += 2;
    }
  }
  return true;
}

namespace {

template <class Values, class Value>
void addOnce(Values& values, const char* name, const Value& value) {
  require(values.emplace(name, value).second, "a property is added once");
}

}  // namespace

void returnBoolean(zval* result, bool flag) { result->numbers["returned"] = flag; }
void returnString(zval* result, const std::string& text) { result->text = text.c_str(); }
void makeObject(zval* value) { *value = {}; }
void makeArray(zval* value) { *value = {}; }
void addBoolean(zval* object, const char* name, bool flag) { addOnce(object->numbers, name, flag); }
void addInteger(zval* object, const char* name, long number) { addOnce(object->numbers, name, number); }
void appendString(zval* array, const std::string& text) { array->list.emplace_back(text.c_str()); }

void addFlag(zval* object, const char* name, bool flag) { addBoolean(object, name, flag); }
void addNumber(zval* object, const char* name, int number) { addInteger(object, name, number); }
void addTexts(zval* object, const char* name, const std::vector<std::string>& texts) {
  addOnce(object->lists, name, texts);
}
void add_property_string_q(zval* object, const char* name, const char* value, int /*copy*/) {
  addOnce(object->texts, name, value);
}
char* get_string_property(zval* object, char* name) {
  const auto found = object->texts.find(name);
  return found == object->texts.end() || found->second.empty() ? nullptr : found->second.data();
}
bool get_bool_property(zval* /*object*/, char* /*name*/) { return false; }

// The device.

Runtime* Runtime::getInstance() {
  static Runtime instance;
  return &instance;
}

bool Runtime::execute(std::string command, std::string& output, int& waitStatus) {
  call.commands.push_back(command);
  DeviceAnswer answer = {true, ""};
  if (!call.answers.empty()) {
    answer = call.answers.front();
    call.answers.pop_front();
  }
  output = answer.output;
  waitStatus = answer.succeeded ? 0 : 256;
  return answer.succeeded;
}

int Runtime::execute(std::string command) {
  std::string output;
  int waitStatus = 0;
  execute(command, output, waitStatus);
  return waitStatus;
}

std::vector<CommandAnswer> runAtOnce(const std::vector<std::string>& commands) {
  std::vector<CommandAnswer> answers;
  for (const std::string& command : commands) {
    std::string output;
    int waitStatus = 0;
    const bool succeeded = Runtime::getInstance()->execute(command, output, waitStatus);
    answers.push_back({succeeded, output});
  }
  return answers;
}

// The management services.

StorageLibraryProxy* StorageLibraryProxy::getInstance() {
  static StorageLibraryProxy instance;
  return &instance;
}
void StorageLibraryProxy::setSession(zval* /*session*/) {}
TarnAbstract::sp<Velm::IMgmtAppConfig> StorageLibraryProxy::getAppMgmtConfigInterface() {
  return TarnAbstract::sp<Velm::IMgmtAppConfig>();
}
TarnAbstract::sp<Velm::IConnectivity> StorageLibraryProxy::getConnectivityMgmtInterface() {
  return TarnAbstract::sp<Velm::IConnectivity>();
}

// What is written.

void checkResultCode(unsigned int code, char* /*message*/, char* /*file*/, int /*line*/) {
  if (TarnAbstract::Result::IsFailed(code)) ++call.reports;
}
void trace(const char* /*message*/, const char* /*extra*/) {}
void trace(const char* /*message*/, const std::string& /*extra*/) {}
void trace(const char* /*message*/, int /*value*/) {}
