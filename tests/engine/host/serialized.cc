#include "serialized.h"

#include <climits>
#include <cstdio>
#include <cstdlib>

#include "engine.h"
#include "values.h"

namespace {

class Reader {
 public:
  explicit Reader(const std::string& text) : text_(text) {}

  zval* ReadWhole() {
    zval* const value = Read();
    if (!failed_ && at_ == text_.size()) return value;
    dropValue(value);
    return nullptr;
  }

 private:
  zval* Read() {
    zval* value = newValue();
    const char type = Next();
    if (type == 'O') {
      Expect(':');
      dropValue(value);
      value = newObject(Quoted().c_str());
      Expect(':');
      ReadElements(Z_OBJPROP_P(value));
      return value;
    }
    if (type != 'N') Expect(':');
    if (type == 'b') setBoolean(value, Until(';') == "1");
    if (type == 'd') setDouble(value, std::strtod(Until(';').c_str(), nullptr));
    if (type == 'i') ReadInteger(value);
    if (type == 's') setString(value, Quoted());
    if (type == 'a') {
      _array_init(value);
      ReadElements(Z_ARRVAL_P(value));
    }
    if (type == 's' || type == 'N') Expect(';');
    if (std::string("bdisaN").find(type) == std::string::npos) failed_ = true;
    return value;
  }

  // An integer too big for this processor is a double to the engine's own scanner.
  void ReadInteger(zval* value) {
    const long long number = Number(';');
    if (number < LONG_MIN || number > LONG_MAX) {
      setDouble(value, static_cast<double>(number));
    } else {
      setLong(value, static_cast<long>(number));
    }
  }

  void ReadElements(HashTable* table) {
    const long long count = Number(':');
    Expect('{');
    for (long long i = 0; i < count && !failed_; ++i) {
      zval* const key = Read();
      zval* const value = Read();
      if (Z_TYPE_P(key) == IS_STRING) {
        setElement(table, textIn(key), value);
      } else {
        appendElement(table, value);
      }
      dropValue(key);
    }
    Expect('}');
  }

  std::string Quoted() {
    const auto length = static_cast<std::size_t>(Number(':'));
    Expect('"');
    std::string characters = failed_ ? std::string() : text_.substr(at_, length);
    at_ += length;
    Expect('"');
    return characters;
  }

  long long Number(char end) {
    const std::string digits = Until(end);
    char* behind = nullptr;
    const long long number = std::strtoll(digits.c_str(), &behind, 10);
    if (digits.empty() || *behind != '\0') failed_ = true;
    return number;
  }

  std::string Until(char end) {
    const std::size_t start = at_;
    at_ = text_.find(end, start);
    if (at_ == std::string::npos) {
      failed_ = true;
      at_ = text_.size();
      return "";
    }
    return text_.substr(start, at_++ - start);
  }

  char Next() {
    if (at_ < text_.size()) return text_[at_++];
    failed_ = true;
    return '\0';
  }

  void Expect(char wanted) {
    if (Next() != wanted) failed_ = true;
  }

  const std::string& text_;
  std::size_t at_ = 0;
  bool failed_ = false;
};

std::string quoted(const std::string& text) { return std::to_string(text.size()) + ":\"" + text + '"'; }

std::string serializedElements(const HashTable* table) {
  std::string text = std::to_string(table->elements.size()) + ":{";
  for (const HashTable::Element& element : table->elements) {
    text += element.name.empty() ? "i:" + std::to_string(element.number) : "s:" + quoted(element.name);
    text += ';' + serialized(element.value);
  }
  return text + '}';
}

}  // namespace

zval* unserialized(const std::string& text) { return Reader(text).ReadWhole(); }

std::string serialized(const zval* value) {
  constexpr int EnoughForEveryDouble = 17;
  char number[64];
  switch (Z_TYPE_P(value)) {
    case IS_NULL:
      return "N;";
    case IS_BOOL:
      return Z_LVAL_P(value) == 0 ? "b:0;" : "b:1;";
    case IS_LONG:
      return "i:" + std::to_string(Z_LVAL_P(value)) + ';';
    case IS_DOUBLE:
      (void)std::snprintf(number, sizeof(number), "d:%.*g;", EnoughForEveryDouble, Z_DVAL_P(value));
      return number;
    case IS_STRING:
      return "s:" + quoted(textIn(value)) + ';';
    case IS_ARRAY:
      return "a:" + serializedElements(Z_ARRVAL_P(value));
    case IS_OBJECT:
      return "O:" + quoted(className(value)) + ':' + serializedElements(Z_OBJPROP_P(value));
    default:
      reportMisuse("a value of the type " + std::to_string(Z_TYPE_P(value)));
      return "N;";
  }
}
