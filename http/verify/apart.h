// The vendor's code runs in processes of their own: one that ends there, or never answers, is a finding like
// others.
#pragma once

#include <string>

// Where the process is, for whoever asks why it has ended: "while libVelm.so was loaded". Empty: nowhere in
// particular.
void sayWhere(const std::string& where);

// Starts the process: true in it, false in the one that has started it.
bool beginApart();
// The last act of the process.
[[noreturn]] void endApart();
// Waits for the process, and says what became of it unless it has come to its end. False when it ended
// somewhere that it had named.
bool judgeApart(const std::string& what);

template <class Check>
bool apart(const std::string& what, const Check& check) {
  if (beginApart()) {
    check();
    endApart();
  }
  return judgeApart(what);
}
