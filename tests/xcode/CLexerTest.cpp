#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "xcode/CLexer.h"
#include "xcode/Lexed.h"
#include "xcode/SourceText.h"

namespace glossmill {
namespace {

using Kind = SourceToken::Kind;

TEST(CLexer, GivesWordsNumbersAndMarks) {
  expectTokens<CLexer>({{"", {}},
                        {" \t\r\n\v\f", {}},
                        {"a_1$ b", {"word a_1$", "word b"}},
                        {"größe", {"word größe"}},
                        {"f(x);", {"word f", "mark (", "word x", "mark )", "mark ;"}},
                        {"1.5e3 0x1F", {"word 1", "mark .", "word 5e3", "word 0x1F"}},
                        {"a->b ::c", {"word a", "mark -", "mark >", "word b", "mark :", "mark :", "word c"}}});
}

TEST(CLexer, PassesOverComments) {
  expectTokens<CLexer>({{"a // b\nc", {"word a", "word c"}},
                        {"a // b\rc", {"word a", "word c"}},
                        {"a // b \"\nc", {"word a", "word c"}},
                        {"a /* b\n \" */ c", {"word a", "word c"}},
                        {"a /*/ b */ c", {"word a", "word c"}},
                        {"a /**/ c", {"word a", "word c"}},
                        {"a /* b", {"word a"}},
                        {"a //", {"word a"}},
                        {"a / b", {"word a", "mark /", "word b"}},
                        {"a /", {"word a", "mark /"}},
                        {"a /* // */ b", {"word a", "word b"}},
                        {"a // /*\nb", {"word a", "word b"}}});
}

TEST(CLexer, TakesStringsWhole) {
  expectTokens<CLexer>(
      {{R"("a" b)", {R"(literal "a")", "word b"}},
       {R"(@"a")", {"mark @", R"(literal "a")"}},
       {R"("a\"b" c)", {R"(literal "a\"b")", "word c"}},
       {R"("a\\" c)", {R"(literal "a\\")", "word c"}},
       {R"("// a" "/* b")", {R"(literal "// a")", R"(literal "/* b")"}},
       {R"(L"a" u8"b" u"c" U"d" x"e")",
        {R"(literal L"a")", R"(literal u8"b")", R"(literal u"c")", R"(literal U"d")", "word x", R"(literal "e")"}},
       {R"("'")", {R"(literal "'")"}}});
}

TEST(CLexer, EndsAStringAtTheEndOfItsLine) {
  expectTokens<CLexer>({{"\"a\nb", {"broken \"a", "word b"}},
                        {"\"a\r\nb", {"broken \"a", "word b"}},
                        {"\"a", {"broken \"a"}},
                        {"\"a\\", {"broken \"a\\"}},
                        {"L\"a", {"broken L\"a"}},
                        {"don't\nb", {"word don", "character 't", "word b"}}});
}

TEST(CLexer, TellsCharactersFromTheQuotesInsideNumbers) {
  expectTokens<CLexer>({{"'\"' b", {"character '\"'", "word b"}},
                        {R"('\'' b)", {R"(character '\'')", "word b"}},
                        {R"('//' b)", {"character '//'", "word b"}},
                        {"1'000'000 \"b\"", {"word 1'000'000", "literal \"b\""}},
                        {"0x1'F'0 'b'", {"word 0x1'F'0", "character 'b'"}},
                        {"L'a' u8'a'", {"word L", "character 'a'", "word u8", "character 'a'"}},
                        {"case 1:'a'", {"word case", "word 1", "mark :", "character 'a'"}}});
}

TEST(CLexer, TakesRawStringsWhole) {
  expectTokens<CLexer>(
      {{"R\"(a \" \\)\" b", {"literal R\"(a \" \\)\"", "word b"}},
       {"R\"x(a)\" )x\" b", {"literal R\"x(a)\" )x\"", "word b"}},
       {"R\"(a\nb)\" c", {"literal R\"(a\nb)\"", "word c"}},
       {"u8R\"(a)\" LR\"(b)\"", {"literal u8R\"(a)\"", "literal LR\"(b)\""}},
       {"R\"(a", {"broken R\"(a"}},
       {"xR\"(a\\\"\" b", {"word xR", "literal \"(a\\\"\"", "word b"}},
       {"R\"a b\" c", {"word R", "literal \"a b\"", "word c"}},
       {"R\"12345678901234567(a\" b", {"word R", "literal \"12345678901234567(a\"", "word b"}},
       {"f(1'0, R\"(a\")\")", {"word f", "mark (", "word 1'0", "mark ,", "literal R\"(a\")\"", "mark )"}}});
}

TEST(CLexer, SeesThroughLineContinuations) {
  expectTokens<CLexer>({{"a \\\n b", {"word a", "word b"}},
                        {"a\\\nb", {"word a\\\nb"}},
                        {"a\\\r\nb \\ \n c", {"word a\\\r\nb", "word c"}},
                        {"a\\\n b", {"word a", "word b"}},
                        {"\"a\\\nb\" c", {"literal \"a\\\nb\"", "word c"}},
                        {"\"a\\\\\n\"b\" c", {"literal \"a\\\\\n\"b\"", "word c"}},
                        {"// a\\\nb\nc", {"word c"}},
                        {"// a\\ \nb\nc", {"word c"}},
                        {"/\\\n/ a\nb", {"word b"}},
                        {"/\\\n* a *\\\n/ b", {"word b"}},
                        {"a \\ b", {"word a", "mark \\", "word b"}}});
}

TEST(CLexer, TakesDirectivesWhole) {
  expectTokens<CLexer>({{"#import <a.h>\nb", {"directive #import <a.h>", "word b"}},
                        {"a\n  # define X(y) \"y\"\r\nb", {"word a", "directive # define X(y) \"y\"", "word b"}},
                        {"#define X \\\n  y\nb", {"directive #define X \\\n  y", "word b"}},
                        {"#define X /* a\n b */ y\nb", {"directive #define X /* a\n b */ y", "word b"}},
                        {"#define X \"//\" 'a' // \\\n y\nb", {"directive #define X \"//\" 'a' // \\\n y", "word b"}},
                        {"#pragma mark it's\nb", {"directive #pragma mark it's", "word b"}},
                        {"#define X 1'0 R\"(\n)\"\nb", {"directive #define X 1'0 R\"(\n)\"", "word b"}},
                        {"/* a */ #if 0\nb", {"directive #if 0", "word b"}},
                        {"/* a\n */ /**/ #if 0\nb", {"directive #if 0", "word b"}},
                        {"// a\n#if 0\nb", {"directive #if 0", "word b"}},
                        {"a #b", {"word a", "mark #", "word b"}},
                        {"a /*\n*/ #b", {"word a", "mark #", "word b"}},
                        {"a \\\n#b", {"word a", "mark #", "word b"}},
                        {" \\\n#b", {"directive #b"}},
                        {"##", {"directive ##"}}});
}

TEST(CLexer, TakesAHashForAMarkInsideADirective) {
  CLexer lexer("#define X", 0, CLexer::Directives::Marks);
  EXPECT_EQ(lexer.next().kind, Kind::Mark);
  EXPECT_EQ(lexer.next().kind, Kind::Word);
}

struct CSkip {
  std::string text;  ///< what is skipped to begins with a capital X
  CLexer::Reached reached;
  std::string rest;  ///< from the place that was reached
};

TEST(CLexer, SkipsToWordsAndKnowsWhatHidesThem) {
  using enum CLexer::Reached;
  const CSkip rows[] = {{"X b", Code, "X b"},
                        {"\"a\" 'a' R\"(\")\" /* */ #\n // a\n X b", Code, "X b"},
                        {"a // X\nb", Beyond, "\nb"},
                        {"a /* X */ b", Beyond, " b"},
                        {"a \" X \" b", Beyond, " b"},
                        {"a ' X ' b", Beyond, " b"},
                        {"a R\"( \" X )\" b", Beyond, " b"},
                        {"a\n # define X b\nc", Directive, "# define X b\nc"},
                        {"#define a b\nX", Code, "X"},
                        {"#define a b\\\nX", Directive, "#define a b\\\nX"},
                        {"a # X", Code, "X"}};
  for (const CSkip& row : rows) {
    CLexer lexer(row.text);
    EXPECT_EQ(lexer.skipTo(row.text.find('X')), row.reached) << "in: " << row.text;
    EXPECT_EQ(row.text.substr(lexer.position()), row.rest) << "in: " << row.text;
  }
}

/// Text of the pieces that mean something to the lexer.
std::string randomCSource(std::mt19937& random) {
  static const std::string pieces[] = {"a",    "b1",  " ",  "\n", "\r\n", "\\\n", "\\", "\\ \n", "\"",
                                       "'",    "/",   "//", "*",  "/*",   "*/",   "#",  "R",     "u8R",
                                       "R\"(", ")\"", "x",  "(",  ")",    "1",    "'0", "\"a\"", "# define "};
  std::uniform_int_distribution<std::size_t> length(0, 24);
  std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
  std::string text;
  for (std::size_t left = length(random); left > 0; --left) text += pieces[piece(random)];
  return text;
}

/// What skipTo must say of a place, from the tokens one by one.
CLexer::Reached expectedAt(std::size_t place, const std::vector<SourceToken>& tokens) {
  for (const SourceToken& token : tokens) {
    if (token.begin == place && token.kind != Kind::Directive) return CLexer::Reached::Code;
    if (token.begin <= place && place < token.end && token.kind == Kind::Directive) return CLexer::Reached::Directive;
  }
  return CLexer::Reached::Beyond;
}

bool mayBeSkippedTo(const std::string& text, std::size_t place) {
  const bool begins = isWordByte(text[place]) && (place == 0 || !isWordByte(text[place - 1]));
  return begins && beforeContinuations(text, place, 0) == place && (place == 0 || text[place - 1] != '\'');
}

TEST(CLexer, SkipsAsItGoesTokenByToken) {
  std::mt19937 random(20240611);
  for (int round = 0; round < 30000; ++round) {
    const std::string text = randomCSource(random);
    const std::vector<SourceToken> tokens = tokensOf<CLexer>(text);
    for (std::size_t place = 0; place < text.size(); ++place) {
      if (!mayBeSkippedTo(text, place)) continue;
      CLexer lexer(text);
      ASSERT_EQ(lexer.skipTo(place), expectedAt(place, tokens)) << place << " in: " << text;
    }
  }
}

}  // namespace
}  // namespace glossmill
