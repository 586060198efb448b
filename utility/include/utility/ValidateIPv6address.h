// IPv6 addresses in their long form.
#pragma once

#include <string>
#include <vector>

class ValidateIPv6address {
 public:
  ValidateIPv6address();
  ~ValidateIPv6address();  // NOLINT(performance-trivially-destructible): the library exports one

  // Appends to groups the address's eight 16-bit groups in order, hexadecimal in lower case without
  // leading zeros; a zone ("%eth0") is dropped. A text that is no IPv6 address gives eight times "0",
  // and the result is false.
  bool convertToFullAddress(std::string address, std::vector<std::string>& groups);
};
