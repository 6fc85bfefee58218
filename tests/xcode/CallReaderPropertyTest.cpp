#include <random>
#include <string>
#include <vector>

#include "xcode/PlainCallReader.h"
#include "xcode/ReadCalls.h"

namespace glossmill {
namespace {

std::string randomText(std::mt19937& random, const std::vector<std::string>& pieces) {
  std::uniform_int_distribution<std::size_t> length(0, 30);
  std::uniform_int_distribution<std::size_t> piece(0, pieces.size() - 1);
  std::string text;
  for (std::size_t left = length(random); left > 0; --left) text += pieces[piece(random)];
  return text;
}

TEST(CallReader, FindsInCWhatEveryTokenTells) {
  const std::vector<std::string> pieces = {"NSLocalizedString",
                                           "NSLocalizedString(",
                                           "NSLocalizedString(@\"a\", ",
                                           "L",
                                           "L(",
                                           "M(",
                                           "(",
                                           ")",
                                           ")",
                                           "[",
                                           "]",
                                           "{",
                                           "}",
                                           ";",
                                           ",",
                                           ":",
                                           "?",
                                           " ",
                                           "\n",
                                           "\\\n",
                                           "\r\n",
                                           "@\"b\"",
                                           "\"",
                                           "'",
                                           "//",
                                           "/*",
                                           "*/",
                                           "k",
                                           "nil",
                                           "@",
                                           "\n#define L(k) ",
                                           "\n#define M(k, c) ",
                                           "\n#if\n",
                                           "localizedStringForKey:",
                                           " value:",
                                           " table:",
                                           "R\"(",
                                           ")\"",
                                           "CFSTR(",
                                           "*",
                                           "NSLocal\\\nizedString("};
  const RoutineTable routines =
      routinesInC({}, readMacros("#define M(k, c) NSLocalizedStringFromTable(k, c, nil)\n#define H(k) M(k, @\"T\")"));
  std::mt19937 random(20240614);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = randomText(random, pieces);
    ASSERT_EQ(shown(readCallsInC(text, routines)), shown(PlainCallReader::readInC(text, routines))) << text;
  }
}

TEST(CallReader, FindsInSwiftWhatEveryTokenTells) {
  const std::vector<std::string> pieces = {"NSLocalizedString",
                                           "NSLocalizedString(",
                                           "NSLocalizedString(\"a\", ",
                                           "comment: ",
                                           "tableName: ",
                                           "(",
                                           ")",
                                           ")",
                                           "[",
                                           "]",
                                           "{",
                                           "}",
                                           ",",
                                           ":",
                                           " ",
                                           "\n",
                                           "\"b\"",
                                           "\"",
                                           "\"\"\"",
                                           "\\(",
                                           "#",
                                           "\"#",
                                           "//",
                                           "/*",
                                           "*/",
                                           "/",
                                           "=",
                                           "nil",
                                           "String(",
                                           "localized: ",
                                           "localized",
                                           ".localizedString(forKey: ",
                                           "value: ",
                                           "table: ",
                                           "func ",
                                           "L("};
  const RoutineTable routines = routinesInSwift({parseRoutine("L(key, table, comment)").value()});
  std::mt19937 random(20240615);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = randomText(random, pieces);
    ASSERT_EQ(shown(readCallsInSwift(text, routines)), shown(PlainCallReader::readInSwift(text, routines))) << text;
  }
}

/// That many times the same.
std::string repeated(std::size_t times, std::string_view text) {
  std::string all;
  for (std::size_t time = 0; time < times; ++time) all += text;
  return all;
}

TEST(CallReader, BearsDeepNestingAndEndlessLiterals) {
  constexpr std::size_t kMany = 100000;
  const std::vector<std::string> sources = {
      repeated(kMany, "NSLocalizedString("),
      repeated(kMany, "NSLocalizedString(") + repeated(kMany, ")"),
      "NSLocalizedString(" + repeated(kMany, "(") + "@\"a\"" + repeated(kMany, ")") + ")",
      "NSLocalizedString(" + repeated(kMany, "[{("),
      repeated(kMany, "[b localizedStringForKey:"),
      repeated(kMany, "NSLocalizedString(@\""),
      "NSLocalizedString(@\"" + repeated(kMany, "a\\\n"),
      repeated(kMany, "R\"(NSLocalizedString("),
      repeated(kMany, "/*/ NSLocalizedString('"),
      repeated(kMany, "\n#define NSLocalizedString("),
  };
  const RoutineTable routines = routinesInC({}, {});
  for (const std::string& source : sources) {
    EXPECT_LE(readCallsInC(source, routines).problems.size(), kMany) << source.substr(0, 40);
  }
}

TEST(CallReader, BearsDeepNestingInSwift) {
  constexpr std::size_t kMany = 100000;
  const std::vector<std::string> sources = {
      repeated(kMany, "NSLocalizedString("),
      repeated(kMany, "\"\\(NSLocalizedString("),
      repeated(kMany, "\"\\(") + "NSLocalizedString(\"a\")" + repeated(kMany, ")\""),
      repeated(kMany, "/*") + "NSLocalizedString(\"a\")",
      repeated(kMany, "#\"NSLocalizedString("),
      repeated(kMany, "String(localized: "),
  };
  const RoutineTable routines = routinesInSwift({});
  for (const std::string& source : sources) {
    EXPECT_LE(readCallsInSwift(source, routines).problems.size(), kMany) << source.substr(0, 40);
  }
}

TEST(CallReader, BearsLongChainsOfMacros) {
  constexpr std::size_t kMany = 50000;
  std::string source = "#define M0(k) NSLocalizedString(k, nil)\n";
  for (std::size_t macro = 1; macro < kMany; ++macro) {
    source += "#define M" + std::to_string(macro) + "(k) M" + std::to_string(macro - 1) + "(k) M" +
              std::to_string(kMany - macro) + "(k)\n";
  }
  source += "M" + std::to_string(kMany - 1) + "(@\"a\")";
  const SourceCalls found = readCallsInC(source, routinesInC({}, {}));
  ASSERT_EQ(found.calls.size(), 1U);
  EXPECT_EQ(found.calls[0].key, "a");
}

}  // namespace
}  // namespace glossmill
