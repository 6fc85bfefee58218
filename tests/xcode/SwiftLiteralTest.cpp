#include "xcode/LiteralRows.h"
#include "xcode/SwiftLiteral.h"

namespace glossmill {
namespace {

TEST(SwiftLiteral, IsWhatStandsBetweenTheQuotes) {
  expectValues(swiftLiteralValue, {{R"("")", ""},
                                   {R"("a b")", "a b"},
                                   {R"("'%@' // /* #")", "'%@' // /* #"},
                                   {"\"gr\xC3\xB6\xC3\x9F"
                                    "e\"",
                                    "größe"}});
}

TEST(SwiftLiteral, KnowsTheEscapesOfSwift) {
  expectValues(swiftLiteralValue, {{R"("\n\t\r\"\'\\")", "\n\t\r\"'\\"},
                                   {R"("\01")", std::string("\0001", 2)},
                                   {R"("\u{e4}\u{20AC}1\u{0001F6A2}")", "ä€1\xF0\x9F\x9A\xA2"},
                                   {R"("\\n")", "\\n"}});
}

TEST(SwiftLiteral, WantsTheHashesOfARawStringInItsEscapes) {
  expectValues(swiftLiteralValue, {{R"(#"a\n"b""#)", "a\\n\"b\""},
                                   {R"(#"a\#nb"#)", "a\nb"},
                                   {R"(##"a\#n\##n"#b"##)", "a\\#n\n\"#b"},
                                   {R"(#"""#)", "\""},
                                   {R"(#""""#)", "\"\""},
                                   {R"(#"\("#)", "\\("}});
}

TEST(SwiftLiteral, TakesTheIndentationOfTheLastQuotesOff) {
  expectValues(swiftLiteralValue, {{"\"\"\"\na\n\"\"\"", "a"},
                                   {"\"\"\"\n\"\"\"", ""},
                                   {"\"\"\"\n\n\"\"\"", ""},
                                   {"\"\"\"\n  a\n\n    b\n  \"\"\"", "a\n\n  b"},
                                   {"\"\"\" \t\n  a\n \n  b\n  \"\"\"", "a\n\nb"},
                                   {"\"\"\"\n  a\n   \n  \"\"\"", "a\n "},
                                   {"\"\"\"\r\n  a\r\n  b\r  c\n  \"\"\"", "a\nb\nc"},
                                   {"\"\"\"\n  \"a\" \"\"\n  \"\"\"", "\"a\" \"\""},
                                   {"#\"\"\"\n  a\\n\\#n\"\"\"\n  \"\"\"#", "a\\n\n\"\"\""}});
}

TEST(SwiftLiteral, JoinsLinesThatABackslashEnds) {
  expectValues(swiftLiteralValue, {{"\"\"\"\n  a \\\n  b\n  \"\"\"", "a b"},
                                   {"\"\"\"\n  a\\ \t\n  b\\n\n  \"\"\"", "ab\n"},
                                   {"#\"\"\"\n  a\\\n  b\\#\n  c\n  \"\"\"#", "a\\\nbc"}});
}

TEST(SwiftLiteral, SaysWhatIsWrong) {
  expectMistakes(swiftLiteralValue, {{R"("\q")", "an escape that Swift does not know"},
                                     {R"("\x41")", "an escape that Swift does not know"},
                                     {R"("\u0041")", "\\u without its braces"},
                                     {R"("\u{}")", "\\u{} without one to eight digits"},
                                     {R"("\u{000000041}")", "\\u{} without one to eight digits"},
                                     {R"("\u{41")", "\\u{} without one to eight digits"},
                                     {R"("\u{D83D}")", "an escape stands for no character"},
                                     {R"("\u{FFFFFFFF}")", "an escape stands for no character"},
                                     {R"~("\(a)")~", "an interpolation"},
                                     {R"~(#"\#(a)"#)~", "an interpolation"},
                                     {"\"\"\"a\n\"\"\"", "text behind the first three quotes"},
                                     {"\"\"\"a\"\"\"", "text behind the first three quotes"},
                                     {"\"\"\"\na\"\"\"", "text in front of the last three quotes"},
                                     {"\"\"\"\n  a\n b\n  \"\"\"", "a line that is indented less than the last quotes"},
                                     {"\"\"\"\na\\\n\"\"\"", "a backslash at the end"}});
}

}  // namespace
}  // namespace glossmill
