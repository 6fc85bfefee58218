#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "strings/ReferenceStringsFileParser.h"
#include "strings/StringsFileFindings.h"

namespace glossmill {
namespace {

const std::vector<std::string> kOddKeys = {"a", "b\\", "", "a=b", "\xC3\xB6", "c/d"};

class RandomFile {
 public:
  std::string heap(std::size_t longest) {
    static const std::vector<std::string> pieces = {"\"", "\"", "\"", "\\", "=",  ";",        "/",
                                                    "*",  "\n", "\n", "\r", "a",  "b",        " ",
                                                    "//", "/*", "*/", "a",  "\"", "\xC3\xB6", "\xF0\x9F\x9A\xA2"};
    std::string text;
    for (std::size_t left = number(longest); left > 0; --left) text += pieces[number(pieces.size())];
    return text;
  }

  /// Many of them, and little else.
  std::string quotes(std::size_t most) {
    static const std::vector<std::string> pieces = {"\"", "\"", "\"", "\"", "b", " ", "\\"};
    std::string text;
    for (std::size_t left = number(most); left > 0; --left) text += pieces[number(pieces.size())];
    return text;
  }

  /// Good lines with a few characters lost and doubled.
  std::string damagedFile() {
    static const std::vector<std::string> lines = {
        "\"a\" = \"x\";\n",      "\"b\\\"\" = \"y\\\"\";\n", "/* c */\n",
        "\"a=b\" = \"//z\"; \n", "\"d\" = \"w\";\r\n",       "// e\n\n",
        "\"c/d\"=\"\";\n",       "\"a\"\t=\t\"v\";\n",       "/** f **/ */\n\n"};
    std::string text;
    for (std::size_t left = 1 + number(8); left > 0; --left) text += lines[number(lines.size())];
    for (std::size_t left = number(5); left > 0; --left) text.erase(number(text.size()), 1);
    for (std::size_t left = number(4); left > 0; --left) text.insert(number(text.size()), 1, text[number(text.size())]);
    return text;
  }

  std::vector<std::string_view> pieces(std::string_view text) {
    std::vector<std::string_view> pieces;
    while (!text.empty()) {
      const std::size_t length = number(text.size() < 8 ? 3 : 12);
      pieces.push_back(text.substr(0, length));
      text.remove_prefix(std::min(length, text.size()));
    }
    return pieces;
  }

 private:
  std::size_t number(std::size_t below) { return m_random() % below; }

  std::mt19937 m_random{1984};
};

/// Cuts may fall into the middle of a character of several bytes: the parser's own letters are all ASCII.
void expectTheSame(const std::string& text, RandomFile& random) {
  SCOPED_TRACE(text);
  const StringsFileFindings expected = ReferenceStringsFileParser(text, kOddKeys).findings;
  EXPECT_EQ(parseStringsFile({text}, kOddKeys), expected);
  EXPECT_EQ(parseStringsFile(random.pieces(text), kOddKeys), expected);
  EXPECT_EQ(parseStringsFile({text}, kOddKeys, text), expected);
  EXPECT_EQ(parseStringsFile(random.pieces(text), kOddKeys, random.damagedFile()), expected);
}

TEST(StringsFileParser, AgreesWithThePlainRulesOnRandomTexts) {
  RandomFile random;
  for (int round = 0; round < 20000 && !testing::Test::HasFailure(); ++round) expectTheSame(random.heap(50), random);
}

TEST(StringsFileParser, AgreesWithThePlainRulesOnLongRandomTexts) {
  RandomFile random;
  for (int round = 0; round < 500 && !testing::Test::HasFailure(); ++round) expectTheSame(random.heap(1000), random);
}

TEST(StringsFileParser, AgreesWithThePlainRulesOnLinesOfManyQuotes) {
  RandomFile random;
  for (int round = 0; round < 1000 && !testing::Test::HasFailure(); ++round) {
    expectTheSame("\"a\"" + random.quotes(150) + "=" + random.quotes(100) + "\n\"a\"=\"v\";", random);
  }
}

TEST(StringsFileParser, AgreesWithThePlainRulesOnDamagedFiles) {
  RandomFile random;
  for (int round = 0; round < 15000 && !testing::Test::HasFailure(); ++round) {
    expectTheSame(random.damagedFile(), random);
  }
}

}  // namespace
}  // namespace glossmill
