#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "strings/StringsFileFindings.h"
#include "strings/StringsFileParser.h"

namespace glossmill {
namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;
using Diagnostics = std::vector<std::string>;

const std::vector<std::string> kPlainKeys = {"Open", "Close", "Path", "Say \\", ""};

StringsFileFindings parse(std::string_view text) {
  return parseStringsFile({text}, kPlainKeys);
}

void expectEntries(std::string_view text, const Entries& entries) {
  SCOPED_TRACE(text);
  EXPECT_EQ(parse(text).entries, entries);
  EXPECT_EQ(parse(text).diagnostics, Diagnostics());
}

void expectDiagnostics(std::string_view text, const Diagnostics& diagnostics) {
  SCOPED_TRACE(text);
  EXPECT_EQ(parse(text).entries, Entries());
  EXPECT_EQ(parse(text).diagnostics, diagnostics);
}

TEST(StringsFileParser, TakesAnEntryBehindItsComment) {
  expectEntries("/* Menu title */\n\"Open\" = \"Öffnen\";\n", {{"Open", "Öffnen"}});
}

TEST(StringsFileParser, NeedsNeitherBlanksNorASemicolon) {
  expectEntries("\"Open\"=\"Öffnen\"", {{"Open", "Öffnen"}});
}

TEST(StringsFileParser, TakesOnlyTheFirstEntryOfALine) {
  expectEntries("\"Open\" = \"Öffnen\"; \"Close\" = \"Schließen\";", {{"Open", "Öffnen"}});
}

TEST(StringsFileParser, LosesTheLineBehindALineComment) {
  expectEntries("\"Open\" = \"Öffnen\"; // menu\n\"Close\" = \"Schließen\";", {{"Open", "Öffnen"}});
}

TEST(StringsFileParser, KeepsSlashesInsideAValue) {
  expectEntries("\"Path\" = \"a//b\";", {{"Path", "a//b"}});
  expectEntries("\"Path\" = \"/* a */\";", {{"Path", "/* a */"}});
}

TEST(StringsFileParser, GivesEveryEntryOfAKeyInTheOrderOfTheFile) {
  expectEntries("\"Open\" = \"Auf\";\n\"Open\" = \"Öffnen\";\n", {{"Open", "Auf"}, {"Open", "Öffnen"}});
}

TEST(StringsFileParser, TakesAnEmptyValue) {
  expectEntries("\"Open\" = \"\";", {{"Open", ""}});
}

TEST(StringsFileParser, TakesAnEmptyKey) {
  expectEntries("\"\" = \"nichts\";", {{"", "nichts"}});
}

TEST(StringsFileParser, ReportsAKeyWithoutAMatch) {
  expectDiagnostics("\"Save\" = \"Sichern\";", {"no match: Save"});
  expectDiagnostics("\"open\" = \"auf\";", {"no match: open"});
  expectDiagnostics("\"Open \" = \"auf\";", {"no match: Open "});
}

TEST(StringsFileParser, NeverReportsAnEntryWithoutAMatchAsBadlyFormatted) {
  expectDiagnostics("\"Save\"", {"no match: Save"});
  expectDiagnostics("\"Save\" \"Sichern\"", {"no match: Save"});
}

TEST(StringsFileParser, EndsKeyAndValueAtAQuoteBehindABackslash) {
  expectEntries(R"("Say \"Hi\"" = "Sag \"Hallo\"";)", {{"Say \\", "Sag \\"}});
}

TEST(StringsFileParser, LeavesEscapeSequencesAsTheyStand) {
  expectEntries(R"("Open" = "Auf\n\U00e4";)", {{"Open", "Auf\\n\\U00e4"}});
}

TEST(StringsFileParser, SkipsEmptyLinesWithoutAWord) {
  expectEntries("\n\n\"Open\" = \"Auf\";\n\n", {{"Open", "Auf"}});
  expectEntries("", {});
}

TEST(StringsFileParser, ReportsALineOfBlanksOrACarriageReturn) {
  expectDiagnostics("  \n\r\n\t", {"bad format:   ", "bad format: \r", "bad format: \t"});
}

TEST(StringsFileParser, IgnoresACarriageReturnBehindAValue) {
  expectEntries("\"Open\" = \"Auf\";\r\n\"Close\" = \"Zu\"\r\n", {{"Open", "Auf"}, {"Close", "Zu"}});
}

TEST(StringsFileParser, ReportsALineWithoutAnyQuoteWhole) {
  expectDiagnostics("Open = Auf;", {"bad format: Open = Auf;"});
  expectDiagnostics("Open = Auf;\n\"Close", {"bad format: Open = Auf;"});
}

TEST(StringsFileParser, DropsALineWhoseKeyIsNotClosedWithoutAWord) {
  expectDiagnostics("\"Open", {});
  expectDiagnostics("x \"\n\"Open\n", {});
}

TEST(StringsFileParser, ReportsAnEntryWithoutAnEqualsSignFromTheClosingQuoteOfItsKey) {
  expectDiagnostics("\"Open\" \"Öffnen\";", {"bad format: \" \"Öffnen\";"});
  expectDiagnostics("= \"Open\"", {"bad format: \""});
}

TEST(StringsFileParser, ReportsAnEntryWithoutAValueFromTheEqualsSign) {
  expectDiagnostics("\"Open\" = Öffnen;", {"bad format: = Öffnen;"});
  expectDiagnostics("\"Open\" \"x\" = ;", {"bad format: = ;"});
}

TEST(StringsFileParser, ReportsAValueThatIsNotClosedFromBehindItsOpeningQuote) {
  expectDiagnostics("\"Open\" = \"Öffnen;", {"bad format: Öffnen;"});
  expectDiagnostics("\"Open\" = \"", {"bad format: "});
}

TEST(StringsFileParser, TakesAnEqualsSignInsideALaterLiteralForTheOneThatIsMeant) {
  expectEntries("\"Open\" \"x=\" \"y\";", {{"Open", " "}});
}

TEST(StringsFileParser, SkipsWhateverStandsAroundKeyAndValue) {
  expectEntries("key \"Open\" is = to \"Auf\" and more", {{"Open", "Auf"}});
}

TEST(StringsFileParser, DoesNotLetKeysOrValuesSpanLines) {
  expectDiagnostics("\"Open\" =\n\"Auf\";", {"bad format: =", "no match: Auf"});
  expectDiagnostics("\"Open\" = \"Auf\nund zu\";", {"bad format: Auf"});
}

TEST(StringsFileParser, RunsOnBehindThreeStarsToTheNextEndOfAComment) {
  expectEntries("/***/ \"Open\" = \"Auf\";\n/* x */\"Close\" = \"Zu\";", {{"Close", "Zu"}});
}

TEST(StringsFileParser, LosesALoneSlashAndWhatFollowsIt) {
  expectDiagnostics("a/b", {"bad format: a"});
  expectDiagnostics("/\"Open\" = \"Auf\"", {"no match:  = "});
}

TEST(StringsFileParser, TakesCommentsForTextBehindAnOddNumberOfQuotes) {
  const StringsFileFindings found =
      parse("\"Open = \"Öffnen\";\n/* x */\n\"Close\" = \"Zu\"; // y\n\"Open\" = \"Auf\";");
  EXPECT_EQ(found.entries, (Entries{{"Close", "Zu"}, {"Open", "Auf"}}));
  EXPECT_EQ(found.diagnostics, (Diagnostics{"no match: Open = ", "bad format: /* x */"}));
}

TEST(StringsFileParser, CountsTheLinesThatAreLeftWithoutComments) {
  EXPECT_EQ(parse("").lineCount, 1);
  EXPECT_EQ(parse("\"Open\" = \"Auf\";").lineCount, 1);
  EXPECT_EQ(parse("\n").lineCount, 2);
  EXPECT_EQ(parse("/* one\ntwo */\nthree // four\nfive\n").lineCount, 3);
}

TEST(StringsFileParser, GivesDiagnosticsInTheOrderOfTheLines) {
  expectDiagnostics("x\n\"y\"\nz\n", {"bad format: x", "no match: y", "bad format: z"});
}

TEST(StringsFileParser, GivesTheSameHoweverTheFileComesInPieces) {
  const std::string text =
      "/* ü */\n\"Open\" = \"Öffnen\"; // x\ny\n\n\"Say \\\"Hi\\\"\" = \"a//b\";\r\n\"Close\" \"x\n/***/\n*/z";
  const StringsFileFindings whole = parse(text);
  EXPECT_EQ(whole.entries.size(), 2U);
  EXPECT_EQ(whole.diagnostics.size(), 3U);
  const std::string_view view = text;
  for (std::size_t first = 0; first <= text.size(); ++first) {
    for (std::size_t second = first; second <= text.size(); ++second) {
      const std::vector<std::string_view> pieces = {view.substr(0, first), view.substr(first, second - first),
                                                    view.substr(second)};
      ASSERT_EQ(parseStringsFile(pieces, kPlainKeys), whole) << "cut at " << first << " and " << second;
    }
  }
}

/// Gives the pieces to a parser that is cancelled before the second.
StringsFileContent parseCanceled(std::string_view first, std::string_view second) {
  KeyIndex index;
  index.add("Open");
  KeyReader keys(index);
  TextArena values;
  CancelFlag canceled;
  StringsFileParser parser(keys, values, canceled);
  parser.feed(first);
  canceled.set(true);
  parser.feed(second);
  return parser.finish();
}

TEST(StringsFileParser, LooksForACancelBeforeEachLine) {
  const StringsFileContent content = parseCanceled("x\n\"Open\" = ", "\"Auf\";\ny\n");
  EXPECT_TRUE(content.canceled);
  EXPECT_EQ(content.entries.size(), 0U);
  EXPECT_EQ(content.diagnostics.size(), 1U);
}

TEST(StringsFileParser, LooksForACancelBeforeAnEmptyLastLine) {
  EXPECT_TRUE(parseCanceled("\"Open\" = \"Auf\";\n", "").canceled);
  EXPECT_TRUE(parseCanceled("", "").canceled);
}

TEST(StringsFileParser, CountsAllLinesAlsoAfterACancel) {
  EXPECT_EQ(parseCanceled("x\n", "y\n\nz").lineCount, 4);
}

TEST(StringsFileParser, NumbersTheLinesOfItsDiagnostics) {
  KeyIndex index;
  KeyReader keys(index);
  TextArena values;
  const CancelFlag canceled;
  StringsFileParser parser(keys, values, canceled);
  parser.feed("x\n\n/* \n */\"y\" \n// \nz");
  const StringsFileContent content = parser.finish();
  ASSERT_EQ(content.diagnostics.size(), 3U);
  EXPECT_EQ(content.diagnostics[0].line, 1);
  EXPECT_EQ(content.diagnostics[1].line, 3);
  EXPECT_EQ(content.diagnostics[2].line, 4);
  EXPECT_EQ(content.lineCount, 4);
  EXPECT_FALSE(content.canceled);
}

TEST(StringsFileParser, KeepsValuesWhenTheFileIsGone) {
  KeyIndex index;
  index.add("Open");
  KeyReader keys(index);
  TextArena values;
  const CancelFlag canceled;
  StringsFileContent content;
  {
    std::string file = "\"Open\" = \"Auf\";\n";
    StringsFileParser parser(keys, values, canceled);
    parser.feed(file);
    file.assign(file.size(), '#');
    content = parser.finish();
  }
  ASSERT_EQ(content.entries.size(), 1U);
  EXPECT_EQ(content.entries[0].value.view(), "Auf");
}

}  // namespace
}  // namespace glossmill
