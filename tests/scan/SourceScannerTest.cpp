#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "scan/ScannedSource.h"
#include "support/Ship.h"

namespace glossmill {
namespace {

using Strings = std::vector<std::pair<std::string, std::string>>;  // name and comment
using BadCalls = std::vector<std::string>;

ScannedSource scan(std::string_view text) {
  return ScannedSource(text);
}

Strings stringsIn(std::string_view text) {
  Strings strings;
  for (const SourceString& string : scan(text).strings) strings.emplace_back(string.name, string.comment);
  return strings;
}

void expectOnly(std::string_view text, std::string_view name, std::string_view comment) {
  SCOPED_TRACE(text);
  EXPECT_EQ(stringsIn(text), (Strings{{std::string(name), std::string(comment)}}));
  EXPECT_EQ(scan(text).badCalls, BadCalls());
}

void expectRejected(std::string_view text) {
  SCOPED_TRACE(text);
  EXPECT_EQ(stringsIn(text), Strings());
  EXPECT_EQ(scan(text).badCalls, BadCalls{std::string(text)});
}

TEST(SourceScanner, TakesNameAndCommentOfACall) {
  expectOnly(R"(NSLocalizedString(@"Open", @"Menu title"))", "Open", "Menu title");
}

TEST(SourceScanner, FindsNothingInATextWithoutCalls) {
  for (const std::string_view text :
       {"", "(", "int main() { return @\"a\", @\"b\"; }", "NSLocalizedStrin(@\"k\", @\"c\")"}) {
    const ScannedSource found = scan(text);
    EXPECT_TRUE(found.strings.empty()) << text;
    EXPECT_TRUE(found.badCalls.empty()) << text;
    EXPECT_FALSE(found.wasCanceled) << text;
  }
}

TEST(SourceScanner, RejectsACallWhoseCommentIsNoLiteral) {
  expectRejected(R"(NSLocalizedString(@"Open", nil))");
  expectRejected(R"(NSLocalizedString(@"Open", "plain"))");
  expectRejected(R"(NSLocalizedString(@"Open", kComment))");
}

TEST(SourceScanner, AcceptsAnEmptyComment) {
  expectOnly(R"(NSLocalizedString(@"Open", @""))", "Open", "");
}

TEST(SourceScanner, AcceptsAnEmptyName) {
  expectOnly(R"(NSLocalizedString(@"", @"x"))", "", "x");
}

TEST(SourceScanner, RejectsACallThatAParenthesisInsideItsLiteralCloses) {
  expectRejected(R"~(NSLocalizedString(@"Smile :)", @"face"))~");
}

TEST(SourceScanner, RunsOnIntoLaterCodeBehindAParenthesisInsideALiteral) {
  expectOnly(R"(NSLocalizedString(@"a (b", @"c"); (done)); })", "a (b", "c");
  expectRejected(R"(NSLocalizedString(@"a (b", @"c"); done();)");
}

TEST(SourceScanner, EndsANameAtAQuoteBehindABackslash) {
  expectOnly(R"(NSLocalizedString(@"Say \"Hi\"", @"greeting"))", "Say \\", "greeting");
}

TEST(SourceScanner, EndsACommentAtAQuoteBehindABackslash) {
  expectOnly(R"(NSLocalizedString(@"Hi", @"says \"Hi\""))", "Hi", "says \\");
}

TEST(SourceScanner, TakesOnlyTheFirstOfAdjacentLiterals) {
  expectOnly(R"(NSLocalizedString(@"Part one " @"part two", @"c" @"d"))", "Part one ", "c");
}

TEST(SourceScanner, LeavesEscapeSequencesAsTheyStand) {
  expectOnly(R"(NSLocalizedString(@"Line\n", @"\t"))", "Line\\n", "\\t");
  EXPECT_EQ(scan(R"(NSLocalizedString(@"Line\n", @"c"))").strings.at(0).name.size(), 6U);
}

TEST(SourceScanner, KeepsBlanksAndLineEndsInsideLiterals) {
  expectOnly("NSLocalizedString(@\"  a \n b\t\", @\" \r\n\")", "  a \n b\t", " \r\n");
}

TEST(SourceScanner, KeepsTextOfOtherScripts) {
  expectOnly("NSLocalizedString(@\"Öffnen 港\", @\"\xF0\x9F\x9A\xA2\")", "Öffnen 港", kShip);
}

TEST(SourceScanner, TakesTheTableOfALongerFunctionAsItsComment) {
  expectOnly(R"(NSLocalizedStringFromTable(@"k", @"Table", @"c"))", "k", "Table");
  expectOnly(R"(NSLocalizedStringWithDefaultValue(@"k", nil, bundle, @"Default", @"c"))", "k", "Default");
}

TEST(SourceScanner, FindsTheNameInAnyCaseAndInsideLongerNames) {
  expectOnly(R"(nslocalizedstring(@"k", @"c"))", "k", "c");
  expectOnly(R"(NSLOCALIZEDSTRING(@"k", @"c"))", "k", "c");
  expectOnly(R"(HBNSLocalizedStringOr(@"k", @"c"))", "k", "c");
}

TEST(SourceScanner, TakesTheCommentForTheNameWhenTheNameIsAVariableAndRejectsTheCall) {
  expectRejected(R"(NSLocalizedString(keyVariable, @"c"))");
}

TEST(SourceScanner, RejectsTheDefinitionOfAMacro) {
  expectRejected("NSLocalizedString(key, comment) [bundle localizedStringForKey:(key)]");
}

TEST(SourceScanner, FindsCallsInCommentsAndInBranchesThatAreSwitchedOff) {
  EXPECT_EQ(stringsIn("// NSLocalizedString(@\"a\", @\"1\")\n"
                      "#if 0\nNSLocalizedString(@\"b\", @\"2\")\n#endif\n"
                      "/* NSLocalizedString(@\"c\", @\"3\") */"),
            (Strings{{"a", "1"}, {"b", "2"}, {"c", "3"}}));
}

TEST(SourceScanner, RunsOnToTheNextParenthesisFromANameInsideALiteral) {
  EXPECT_EQ(stringsIn(R"(log(@"NSLocalizedString"); show(@"k", @"c");)"), (Strings{{"k", "c"}}));
}

TEST(SourceScanner, SkipsWhateverStandsBeforeTheParenthesis) {
  expectOnly("NSLocalizedString \n\t/* \"@ , */ oddly (@\"k\", @\"c\")", "k", "c");
}

TEST(SourceScanner, RejectsACallWithoutAParenthesis) {
  expectRejected("NSLocalizedString");
  expectRejected("NSLocalizedString @\"k\", @\"c\")");
}

TEST(SourceScanner, RejectsACallWhoseParenthesesNeverBalance) {
  expectRejected(R"(NSLocalizedString(@"k", @"c")");
  expectRejected(R"(NSLocalizedString((@"k", @"c"))");
}

TEST(SourceScanner, IgnoresWhatStandsAroundTheLiterals) {
  expectOnly(R"(NSLocalizedString( (id) x @ y "k" z , (w) @ v "c" , u ))", "k", "c");
}

TEST(SourceScanner, RejectsACallWithAnIncompleteLiteral) {
  expectRejected(R"(NSLocalizedString())");
  expectRejected(R"(NSLocalizedString("k", "c"))");
  expectRejected(R"(NSLocalizedString(@))");
  expectRejected(R"(NSLocalizedString(@"k))");
  expectRejected(R"(NSLocalizedString(@"k"))");
  expectRejected(R"(NSLocalizedString(@"k",))");
  expectRejected(R"(NSLocalizedString(@"k",@))");
  expectRejected(R"(NSLocalizedString(@"k",@"))");
  expectRejected(R"(NSLocalizedString(@"k",@"c))");
}

TEST(SourceScanner, RejectsACallWithoutACommaBehindItsName) {
  expectRejected(R"(NSLocalizedString(@"k" @"c"))");
  expectRejected(R"(NSLocalizedString(@"k, l" @"c"))");
}

TEST(SourceScanner, DoesNotLookBehindTheClosingParenthesis) {
  expectRejected(R"(NSLocalizedString(@"k"), @"c")");
  expectRejected(R"(NSLocalizedString(), @"k", @"c")");
  expectRejected(R"(NSLocalizedString(@"k", x), @"c")");
  expectRejected(R"~(NSLocalizedString(@"k", @"c)")~");
}

TEST(SourceScanner, GivesStringsAndBadCallsInTheOrderOfTheText) {
  const std::string text =
      R"(NSLocalizedString(@"b", @"1"); NSLocalizedString(1); NSLocalizedString(@"a", @"2"); NSLocalizedString(2);)";
  EXPECT_EQ(stringsIn(text), (Strings{{"b", "1"}, {"a", "2"}}));
  const BadCalls expected = {text.substr(text.find("NSLocalizedString(1"), 80),
                             text.substr(text.find("NSLocalizedString(2"), 80)};
  EXPECT_EQ(scan(text).badCalls, expected);
}

TEST(SourceScanner, TellsWhatARejectedCallLacks) {
  const std::pair<const char*, CallRejection> cases[] = {
      {R"(NSLocalizedString @"k", @"c")", CallRejection::NoParenthesis},
      {R"~(NSLocalizedString(@"k(", @"c"))~", CallRejection::Unbalanced},
      {R"(NSLocalizedString(key, nil))", CallRejection::NoKey},
      {R"~(NSLocalizedString(@"k:)", @"c")~", CallRejection::UnclosedKey},
      {R"(NSLocalizedString(@"k"))", CallRejection::NoComma},
      {R"(NSLocalizedString(key, @"c"))", CallRejection::NoComma},
      {R"(NSLocalizedString(@"k", nil))", CallRejection::NoComment},
      {R"~(NSLocalizedString(@"k", @"c:)")~", CallRejection::UnclosedComment},
  };
  for (const auto& [text, reason] : cases) {
    EXPECT_EQ(scan(text).reasons, std::vector<CallRejection>{reason}) << text;
  }
}

TEST(SourceScanner, GivesEveryOccurrenceOfAString) {
  EXPECT_EQ(stringsIn(R"(NSLocalizedString(@"a", @"1") NSLocalizedString(@"a", @"1"))"),
            (Strings{{"a", "1"}, {"a", "1"}}));
}

TEST(SourceScanner, LooksIntoTheArgumentsOfACallForFurtherCalls) {
  EXPECT_EQ(stringsIn(R"(NSLocalizedString(NSLocalizedString(@"a", @"b"), @"c"))"), (Strings{{"a", "b"}, {"a", "b"}}));
  EXPECT_EQ(stringsIn(R"(NSLocalizedString(@"a", NSLocalizedString(@"b", @"c")))"), (Strings{{"a", "b"}, {"b", "c"}}));
}

TEST(SourceScanner, TakesCallsApartThatHangTogether) {
  // The second name lies between the first and its parenthesis, so both have the same arguments.
  EXPECT_EQ(stringsIn(R"(NSLocalizedStringNSLocalizedString(@"a", @"b"))"), (Strings{{"a", "b"}, {"a", "b"}}));
}

TEST(SourceScanner, GivesViewsIntoTheText) {
  const std::string text = R"(NSLocalizedString(@"", @"c"))";
  const ScannedSource found = scan(text);
  EXPECT_EQ(found.strings.at(0).name.data(), text.data() + 20);
  EXPECT_EQ(found.strings.at(0).comment.data(), text.data() + 25);
}

TEST(SourceScanner, TellsThatItWasCanceled) {
  CancelFlag canceled;
  canceled.set(true);
  EXPECT_TRUE(ScannedSource(R"(NSLocalizedString(@"k", @"c"))", canceled).wasCanceled);
  EXPECT_TRUE(ScannedSource("", canceled).wasCanceled);
}

TEST(SourceScanner, RejectsTheCallDuringWhichItIsCanceled) {
  for (const char* text : {R"(NSLocalizedString(@"k", @"c"))", R"(NSLocalizedString(nil))", "NSLocalizedString"}) {
    CancelFlag canceled;
    SourceScanner scanner(text, canceled);
    ASSERT_TRUE(scanner.next());
    canceled.set(true);
    EXPECT_EQ(std::get<CallRejection>(scanner.read()), CallRejection::Canceled) << text;
    EXPECT_EQ(scanner.excerpt(), text);
  }
}

TEST(SourceScanner, RejectsACallInsideAnotherDuringWhichItIsCanceled) {
  CancelFlag canceled;
  SourceScanner scanner(R"(NSLocalizedString(NSLocalizedString(@"k", @"c")))", canceled);
  ASSERT_TRUE(scanner.next());
  EXPECT_TRUE(std::holds_alternative<SourceString>(scanner.read()));
  ASSERT_TRUE(scanner.next());
  canceled.set(true);
  EXPECT_EQ(std::get<CallRejection>(scanner.read()), CallRejection::Canceled);
}

TEST(SourceScanner, RejectsACallWhenItIsMetAndBeforeTheNextIsLookedAt) {
  CancelFlag canceled;
  std::vector<std::string> rejected;
  const auto cancelAtOnce = [&](std::string_view excerpt, CallRejection) {
    rejected.emplace_back(excerpt);
    canceled.set(true);
  };
  EXPECT_TRUE(scanSource("NSLocalizedString(1); NSLocalizedString(2)", canceled, cancelAtOnce).canceled);
  EXPECT_EQ(rejected, BadCalls{"NSLocalizedString(1); NSLocalizedString(2)"});
}

TEST(SourceScanner, IsCanceledDuringTheLastCallToo) {
  CancelFlag canceled;
  const auto cancel = [&](std::string_view, CallRejection) { canceled.set(true); };
  EXPECT_TRUE(scanSource(R"(NSLocalizedString(@"k", @"c") NSLocalizedString(2))", canceled, cancel).canceled);
}

TEST(SourceScanner, TakesManyNestedCallsApart) {
  constexpr std::size_t kCalls = 30000;
  std::string text;
  for (std::size_t i = 0; i < kCalls; ++i) text += R"(NSLocalizedString(@"k", @"c", )";
  const ScannedSource unbalanced = scan(text);
  EXPECT_EQ(unbalanced.strings.size(), 0U);
  EXPECT_EQ(unbalanced.badCalls.size(), kCalls);
  const ScannedSource balanced = scan(text + std::string(kCalls, ')'));
  EXPECT_EQ(balanced.strings.size(), kCalls);
  EXPECT_EQ(balanced.badCalls.size(), 0U);
}

}  // namespace
}  // namespace glossmill
