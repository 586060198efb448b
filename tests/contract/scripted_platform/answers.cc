#include "answers.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "named_codes.h"
#include "transcript.h"

namespace {

std::string decoded(const std::string& word) {
  std::string text;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] == '%') {
      text += static_cast<char>(std::stoi(word.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      text += word[i];
    }
  }
  return text;
}

// An empty word is written as nothing, so words cannot be read with operator>>.
Answer wordsOf(const std::string& line) {
  Answer words;
  std::istringstream rest(line);
  for (std::string word; std::getline(rest, word, ' ');) words.push_back(decoded(word));
  if (!line.empty() && line.back() == ' ') words.emplace_back();
  return words;
}

[[noreturn]] void endTest(const std::string& mistake) {
  record("unexpected: " + mistake);
  std::abort();
}

}  // namespace

std::optional<Answer> answerTo(const std::string& key) {
  std::optional<Answer> answer;
  std::ifstream table(scriptedPlatformFile("answers"));
  for (std::string line; std::getline(table, line);) {
    Answer words = wordsOf(line);
    if (words.empty() || words.front() != key) continue;
    answer.emplace(std::next(words.begin()), words.end());
  }
  return answer;
}

const std::string& word(const Answer& answer, std::size_t position) {
  if (position >= answer.size()) endTest("the test's answer has no word " + std::to_string(position));
  return answer[position];
}

unsigned long number(const std::string& word) {
  char* end = nullptr;
  const unsigned long value = std::strtoul(word.c_str(), &end, 0);
  if (word.empty() || *end != '\0') endTest("the test's answer \"" + word + "\" is no number");
  return value;
}

TarnAbstract::Result::Code resultCode(const std::string& word) {
  for (const NamedCode& named : namedCodes()) {
    if (word == named.name) return named.code;
  }
  return static_cast<TarnAbstract::Result::Code>(number(word));
}
