#include <gtest/gtest.h>

#include "xcode/PrintedPropertyList.h"
#include "xcode/RandomPieces.h"
#include "xcode/ReferencePropertyList.h"

namespace glossmill {
namespace {

const std::vector<std::string> kPieces = {
    "{",     "}",      "(",         ")",         "=",      ";",           ",",      "a",     "b-",
    "\"c\"", "'d'",    "\"e\\\"\"", " ",         "\n",     "\r\n",        "/",      "//f\n", "/* g */",
    "/*",    "*/",     "<",         ">",         "00",     "\"\\U00e4\"", "\\",     "\"",    "'",
    "\t",    "\u2028", "\uFEFF",    "\"\\344\"", "{a=b;}", "(a,b,)",      "c = ",   "ä",     "\"\\Ud83d\\Udea2\"",
    "$",     ".//",    "a;",        "x=y",       "\"🚢\"",  "\"\\\n\"",    "<0a 1B>"};

/// A list that is correct, most of the time.
std::string randomValue(RandomPieces& random, int levels) {
  static const std::vector<std::string> scalars = {"a",      "\"b c\"", "'d\\''", "<00 ff>", "\"\\U00e4\\n\"",
                                                   "e/*f*/", "\"\""};
  if (levels == 0 || random.oneIn(3)) return random.pick(scalars);
  const bool isArray = random.oneIn(2);
  std::string text = isArray ? "(" : "{";
  for (std::size_t left = random.number(4); left > 0; --left) {
    text += isArray ? randomValue(random, levels - 1) + "," : "k /**/= " + randomValue(random, levels - 1) + ";\n";
  }
  return text + (isArray ? ")" : "}");
}

void expectTheSame(const std::string& text) {
  SCOPED_TRACE(text);
  const PropertyList list(text);
  const std::optional<std::string> expected = ReferencePropertyList::read(text);
  ASSERT_EQ(!list.error().has_value(), expected.has_value()) << mistakeOf(list);
  if (!expected) return;
  ASSERT_EQ(printed(list), *expected);
  ASSERT_EQ(printed(PropertyList(*expected)), *expected);
}

TEST(PropertyList, ReadsRandomPiecesAsThePlainRulesDo) {
  RandomPieces random(3);
  for (int round = 0; round < 20000 && !HasFailure(); ++round) expectTheSame(random.heap(kPieces, 12));
}

TEST(PropertyList, ReadsRandomListsAsThePlainRulesDo) {
  RandomPieces random(4);
  int correct = 0;
  for (int round = 0; round < 5000 && !HasFailure(); ++round) {
    const std::string text = random.damaged(randomValue(random, 4));
    correct += PropertyList(text).error() ? 0 : 1;
    expectTheSame(text);
  }
  EXPECT_GT(correct, 1000);
  EXPECT_LT(correct, 4000);
}

}  // namespace
}  // namespace glossmill
