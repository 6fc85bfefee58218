#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "xcode/Lexed.h"
#include "xcode/SourceText.h"
#include "xcode/SwiftLexer.h"

namespace glossmill {
namespace {

TEST(SwiftLexer, GivesWordsNumbersAndMarks) {
  expectTokens<SwiftLexer>({{"", {}},
                            {" \t\r\n", {}},
                            {"let größe = $0", {"word let", "word größe", "mark =", "word $0"}},
                            {"f(`in`)", {"word f", "mark (", "mark `", "word in", "mark `", "mark )"}},
                            {"#if a\n##", {"mark #", "word if", "word a", "mark ##"}},
                            {"\\.a?", {"mark \\", "mark .", "word a", "mark ?"}}});
}

TEST(SwiftLexer, PassesOverCommentsThatNest) {
  expectTokens<SwiftLexer>({{"a // b \"\nc", {"word a", "word c"}},
                            {"a // b\\\nc", {"word a", "word c"}},
                            {"a /* b \" \n */ c", {"word a", "word c"}},
                            {"a /* /* b */ c */ d", {"word a", "word d"}},
                            {"a /* /*/ b */ */ c", {"word a", "word c"}},
                            {"a /*/ b */ c", {"word a", "word c"}},
                            {"a /*/**/*/ c", {"word a", "word c"}},
                            {"a /* /* b */", {"word a"}},
                            {"a /*", {"word a"}}});
}

TEST(SwiftLexer, TakesStringsWhole) {
  expectTokens<SwiftLexer>({{R"~("a" b)~", {R"~(literal "a")~", "word b"}},
                            {R"~("a\"b\\" c)~", {R"~(literal "a\"b\\")~", "word c"}},
                            {R"~("" "//")~", {R"~(literal "")~", R"~(literal "//")~"}},
                            {"\"a\nb", {"broken \"a", "word b"}},
                            {"\"a\\\nb", {"broken \"a\\", "word b"}},
                            {"\"a", {"broken \"a"}},
                            {"\"a\\", {"broken \"a\\"}}});
}

TEST(SwiftLexer, WantsTheHashesOfARawString) {
  expectTokens<SwiftLexer>({{R"~(#"a\"# b)~", {R"~(literal #"a\"#)~", "word b"}},
                            {R"~(#"a"b\#""# c)~", {R"~(literal #"a"b\#""#)~", "word c"}},
                            {R"~(##"a"# b"## c)~", {R"~(literal ##"a"# b"##)~", "word c"}},
                            {R"~(#"""# b)~", {R"~(literal #"""#)~", "word b"}},
                            {R"~(#"a"##b)~", {R"~(literal #"a"#)~", "mark #", "word b"}},
                            {R"~("a"#"b"#)~", {R"~(literal "a")~", R"~(literal #"b"#)~"}},
                            {"#\"a\"\nb", {"broken #\"a\"", "word b"}}});
}

TEST(SwiftLexer, TakesStringsOfSeveralLinesWhole) {
  expectTokens<SwiftLexer>({{"\"\"\"\na \"\" \"b\"\n\"\"\" c", {"literal \"\"\"\na \"\" \"b\"\n\"\"\"", "word c"}},
                            {"\"\"\"\n\\\"\"\"\n\"\"\" c", {"literal \"\"\"\n\\\"\"\"\n\"\"\"", "word c"}},
                            {"#\"\"\"\n\"\"\" b\n\"\"\"# c", {"literal #\"\"\"\n\"\"\" b\n\"\"\"#", "word c"}},
                            {"\"\"\"\na", {"broken \"\"\"\na"}}});
}

TEST(SwiftLexer, ReadsTheCodeInsideInterpolations) {
  expectTokens<SwiftLexer>(
      {{R"~("a\(b)c" d)~", {R"~(interpolation "a\()~", "word b", R"~(rest )c")~", "word d"}},
       {R"~("\(b)\(c)" d)~",
        {R"~(interpolation "\()~", "word b", R"~(interpolation )\()~", "word c", R"~(rest )")~", "word d"}},
       {R"~("\(f("x)"))" d)~",
        {R"~(interpolation "\()~", "word f", "mark (", R"~(literal "x)")~", "mark )", R"~(rest )")~", "word d"}},
       {R"~("\("\(a)")" b)~",
        {R"~(interpolation "\()~", R"~(interpolation "\()~", "word a", R"~(rest )")~", R"~(rest )")~", "word b"}},
       {R"~(#"\(a)\#(b)"# c)~", {R"~(interpolation #"\(a)\#()~", "word b", R"~(rest )"#)~", "word c"}},
       {"\"\\(a /* ) */\n)\" b", {"interpolation \"\\(", "word a", "rest )\"", "word b"}},
       {"\"\"\"\n\\(a)\n\"\"\" b", {"interpolation \"\"\"\n\\(", "word a", "rest )\n\"\"\"", "word b"}},
       {"\"\\(a) b\nc", {"interpolation \"\\(", "word a", "rest ) b", "word c"}},
       {"\"\\(a", {"interpolation \"\\(", "word a"}}});
}

TEST(SwiftLexer, SurvivesRegularExpressions) {
  expectTokens<SwiftLexer>(
      {{R"~(x = /"[^"\/]*"/ + b)~", {"word x", "mark =", R"~(character /"[^"\/]*"/)~", "mark +", "word b"}},
       {"return /\"/\nb", {"word return", "character /\"/", "word b"}},
       {"f(/\"/, \"a\")", {"word f", "mark (", "character /\"/", "mark ,", "literal \"a\"", "mark )"}},
       {"#/a/\"/# b", {"character #/a/\"/#", "word b"}},
       {"#/\n\"/ \n/# b", {"character #/\n\"/ \n/#", "word b"}},
       {"##/a/# \"\nb", {"character ##/a/# \"", "word b"}},
       {"a / b / \"c\"", {"word a", "mark /", "word b", "mark /", "literal \"c\""}},
       {"(a)/b/\"c\"", {"mark (", "word a", "mark )", "mark /", "word b", "mark /", "literal \"c\""}},
       {"a = / b", {"word a", "mark =", "mark /", "word b"}},
       {"a = /b\n/ c", {"word a", "mark =", "mark /", "word b", "mark /", "word c"}},
       {"x ? /\"/ : b", {"word x", "mark ?", "character /\"/", "mark :", "word b"}}});
}

struct SwiftSkip {
  std::string text;  ///< what is skipped to begins with a capital X
  SwiftLexer::Reached reached;
  std::string rest;  ///< from the place that was reached
};

TEST(SwiftLexer, SkipsToWordsAndKnowsWhatHidesThem) {
  using enum SwiftLexer::Reached;
  const SwiftSkip rows[] = {{"X b", Code, "X b"},
                            {"\"a\" /* /* */ */ #\"\"\"# // a\n X b", Code, "X b"},
                            {"\"a\\(X)\" b", Code, "X)\" b"},
                            {"\"a\\((b) + X)\" b", Code, "X)\" b"},
                            {"\"a\\(b) X\" c", Beyond, " c"},
                            {"a // X\nb", Beyond, "\nb"},
                            {"a /* /**/ X */ b", Beyond, " b"},
                            {"a \" X \" b", Beyond, " b"},
                            {"a = /\"X/ b", Beyond, " b"},
                            {"a = #/\"X/# b", Beyond, " b"}};
  for (const SwiftSkip& row : rows) {
    SwiftLexer lexer(row.text);
    EXPECT_EQ(lexer.skipTo(row.text.find('X')), row.reached) << "in: " << row.text;
    EXPECT_EQ(row.text.substr(lexer.position()), row.rest) << "in: " << row.text;
  }
}

/// Text of the pieces that mean something to the lexer.
std::string randomSwiftSource(std::mt19937& random) {
  static const std::string pieces[] = {"a", "b1", " ", "\n", "\r\n", "\\", "\"", "\"\"\"",  "\\(", "\\#(", "(",
                                       ")", "#",  "/", "//", "/*",   "*/", "=",  "return ", "\"#", "*",    "?"};
  std::uniform_int_distribution<std::size_t> length(0, 24);
  std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
  std::string text;
  for (std::size_t left = length(random); left > 0; --left) text += pieces[piece(random)];
  return text;
}

TEST(SwiftLexer, SkipsAsItGoesTokenByToken) {
  std::mt19937 random(20240612);
  for (int round = 0; round < 30000; ++round) {
    const std::string text = randomSwiftSource(random);
    std::vector<bool> isToken(text.size(), false);
    for (const SourceToken& token : tokensOf<SwiftLexer>(text)) isToken[token.begin] = true;
    for (std::size_t place = 0; place < text.size(); ++place) {
      if (!isWordByte(text[place]) || (place > 0 && isWordByte(text[place - 1]))) continue;
      SwiftLexer lexer(text);
      ASSERT_EQ(lexer.skipTo(place) == SwiftLexer::Reached::Code, isToken[place]) << place << " in: " << text;
    }
  }
}

}  // namespace
}  // namespace glossmill
