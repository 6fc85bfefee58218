#include "xcode/CLiteral.h"
#include "xcode/LiteralRows.h"

namespace glossmill {
namespace {

TEST(CLiteral, IsWhatStandsBetweenTheQuotes) {
  expectValues(cLiteralValue, {{R"("")", ""},
                               {R"("a b")", "a b"},
                               {R"(@"a")", "a"},
                               {R"("'%@' // /* #")", "'%@' // /* #"},
                               {"\"gr\xC3\xB6\xC3\x9F"
                                "e\"",
                                "größe"},
                               {R"(L"a")", "a"},
                               {R"(u8"a")", "a"}});
}

TEST(CLiteral, JoinsAdjacentLiterals) {
  expectValues(cLiteralValue, {{R"(@"a" @"b")", "ab"},
                               {R"(@"a" "b")", "ab"},
                               {"@\"a\"\n  /* c \"d\" */ // e\n @\"b\"", "ab"},
                               {R"("a""b""c")", "abc"},
                               {R"~("" "a" R"(b")" u8"c")~", "ab\"c"}});
}

TEST(CLiteral, KnowsTheEscapesOfC) {
  expectValues(cLiteralValue, {{R"("\n\t\r\a\b\f\v")", "\n\t\r\a\b\f\v"},
                               {R"("\"\'\\\?")", "\"'\\?"},
                               {R"("\\n")", "\\n"},
                               {R"("\101\1012\60")", "AA20"},
                               {R"("\0")", std::string(1, '\0')},
                               {R"("\x41\x0000042g")", "ABg"},
                               {R"("\xC3\xA4\303\244")", "ää"},
                               {R"("\xC3" "\xA4")", "ä"},
                               {R"("\u00e4\u20AC1")", "ä€1"},
                               {R"("\U0001F6A2")", "\xF0\x9F\x9A\xA2"}});
}

TEST(CLiteral, LeavesLineContinuationsOut) {
  expectValues(cLiteralValue, {{"\"a\\\nb\"", "ab"},
                               {"\"a\\\r\nb\\ \n\"", "ab"},
                               {"\"a\\\\\nn\"", "a\n"},
                               {"\"\\x4\\\n1\"", "A"},
                               {"@\"a\" \\\n @\"b\"", "ab"}});
}

TEST(CLiteral, LeavesRawStringsAsTheyAre) {
  expectValues(cLiteralValue, {{R"x(R"(a\n"b")")x", "a\\n\"b\""},
                               {R"x(R"y(a)")y")x", "a)\""},
                               {"R\"(a\\\nb)\"", "a\\\nb"},
                               {"R\"(a\r\nb)\"", "a\nb"},
                               {R"x(u8R"()")x", ""}});
}

TEST(CLiteral, SaysWhatIsWrong) {
  expectMistakes(cLiteralValue, {{R"("a)", "its last quote is missing"},
                                 {R"("a" "b)", "its last quote is missing"},
                                 {"\"a\nb\"", "its last quote is missing"},
                                 {R"("\q")", "an escape that C does not know"},
                                 {R"("\8")", "an escape that C does not know"},
                                 {R"("\x")", "\\x without a hexadecimal digit"},
                                 {R"("\xg")", "\\x without a hexadecimal digit"},
                                 {R"("\x100")", "an escape stands for more than a byte"},
                                 {R"("\x100000041")", "an escape stands for more than a byte"},
                                 {R"("\400")", "an escape stands for more than a byte"},
                                 {R"("\u00e")", "\\u without four digits"},
                                 {R"("\U0001F6A")", "\\U without eight digits"},
                                 {R"("\uD83D\uDE00")", "an escape stands for no character"},
                                 {R"("\U00110000")", "an escape stands for no character"},
                                 {R"("\xC3")", "the bytes of its escapes are no UTF-8"},
                                 {R"("\377")", "the bytes of its escapes are no UTF-8"}});
}

}  // namespace
}  // namespace glossmill
