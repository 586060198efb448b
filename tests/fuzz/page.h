// The handlers of the module without an engine, a device and the management services: what a page hands over
// and gets is here, the device's answers are given, its command lines are kept. The services are not there.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "utility/page_value_types.h"

// A page's value: an object, an array or a text.
struct _zval_struct {  // NOLINT(bugprone-reserved-identifier): the engine's name
  std::map<std::string, std::string> texts;
  std::map<std::string, long> numbers;
  std::map<std::string, std::vector<std::string>> lists;
  std::vector<std::string> list;
  std::string text;
};

struct DeviceAnswer {
  bool succeeded;
  std::string output;
};

// Of the call under way; calling() makes it new.
struct Call {
  zval object;                       // each object that is handed over
  std::string text;                  // each text
  std::deque<DeviceAnswer> answers;  // behind the last one all succeed and say nothing
  std::vector<std::string> commands;
  unsigned int reports = 0;
};
extern Call call;

using Handler = void(int, zval*);
zval returnedBy(Handler* handler);
