#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "scan/ReferenceSourceScanner.h"
#include "scan/ScannedSource.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

class RandomSource {
 public:
  /// Pieces of the alphabet in any order.
  std::string heap(std::size_t longest) {
    static const std::vector<std::string> pieces = {"NSLocalizedString",
                                                    "NSLocalizedString",
                                                    "nslocalizedSTRING",
                                                    "NSLocalizedStrin",
                                                    "(",
                                                    "(",
                                                    ")",
                                                    ")",
                                                    "@",
                                                    "@\"",
                                                    "\"",
                                                    "\"",
                                                    ",",
                                                    "\\",
                                                    "a",
                                                    " ",
                                                    "\n",
                                                    "z",
                                                    "\xC3\xB6",
                                                    "\xF0\x9F\x9A\xA2"};
    std::string text;
    for (std::size_t left = number(longest); left > 0; --left) text += pieces[number(pieces.size())];
    return text;
  }

  /// Good calls, one after the other and inside each other, with a few characters lost and doubled.
  std::string damagedCalls() {
    std::string text;
    for (std::size_t left = 1 + number(4); left > 0; --left) {
      const std::string call = R"(NSLocalizedString(@"k\"1", @"c,2", x))";
      text.insert(text.empty() ? 0 : number(text.size()), call);
    }
    for (std::size_t left = number(6); left > 0; --left) text.erase(number(text.size()), 1);
    for (std::size_t left = number(4); left > 0; --left) text.insert(number(text.size()), 1, text[number(text.size())]);
    return text;
  }

 private:
  std::size_t number(std::size_t below) { return m_random() % below; }

  std::mt19937 m_random{19700101};
};

void expectTheSame(const std::string& text) {
  SCOPED_TRACE(text);
  const ReferenceSourceScanner expected(text);
  const ScannedSource found(text);
  std::vector<ReferenceSourceScanner::String> strings;
  for (const SourceString& string : found.strings) {
    strings.push_back({std::string(string.name), std::string(string.comment)});
  }
  EXPECT_EQ(strings.size(), expected.strings.size());
  EXPECT_TRUE(strings == expected.strings);
  EXPECT_EQ(found.badCalls, expected.badCalls);
}

TEST(SourceScanner, AgreesWithThePlainRulesOnRandomTexts) {
  RandomSource random;
  for (int round = 0; round < 20000 && !testing::Test::HasFailure(); ++round) expectTheSame(random.heap(60));
}

TEST(SourceScanner, AgreesWithThePlainRulesOnLongRandomTexts) {
  RandomSource random;
  for (int round = 0; round < 300 && !testing::Test::HasFailure(); ++round) expectTheSame(random.heap(1000));
}

TEST(SourceScanner, AgreesWithThePlainRulesOnDamagedCalls) {
  RandomSource random;
  for (int round = 0; round < 10000 && !testing::Test::HasFailure(); ++round) expectTheSame(random.damagedCalls());
}

}  // namespace
}  // namespace glossmill
