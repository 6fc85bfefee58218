#include <gtest/gtest.h>

#include "search/SourceExcerpt.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

using namespace std::string_literals;

std::string callIn(std::string_view source, std::size_t begin = 0) {
  const TextRange call = callAt(source, begin);
  return std::string(source.substr(call.begin, call.length));
}

/// The numbers of the lines, and of each what is marked.
std::vector<std::pair<std::uint32_t, std::string>> marks(const std::vector<ExcerptLine>& lines) {
  std::vector<std::pair<std::uint32_t, std::string>> marks;
  for (const ExcerptLine& line : lines) {
    marks.emplace_back(line.number, line.text.substr(line.mark.begin, line.mark.length));
  }
  return marks;
}
using Marks = std::vector<std::pair<std::uint32_t, std::string>>;

TEST(SourceExcerpt, TakesACallUpToTheParenthesisThatClosesIt) {
  EXPECT_EQ(callIn("Tr(@\"a\", f(1)); x)"), "Tr(@\"a\", f(1))");
  EXPECT_EQ(callIn("x = Tr (a);", 4), "Tr (a)");
}

TEST(SourceExcerpt, TakesNoParenthesisOfALiteralOrACommentForOne) {
  EXPECT_EQ(callIn("Tr(@\":)\", nil)"), "Tr(@\":)\", nil)");
  EXPECT_EQ(callIn("Tr(@\"\\\")\", nil)"), "Tr(@\"\\\")\", nil)");
  EXPECT_EQ(callIn("Tr(a /* :) */, b)"), "Tr(a /* :) */, b)");
  EXPECT_EQ(callIn("Tr(a, // :)\n b)"), "Tr(a, // :)\n b)");
  EXPECT_EQ(callIn("Tr(\"\"\"\n a \")\" \n\"\"\")"), "Tr(\"\"\"\n a \")\" \n\"\"\")");
}

TEST(SourceExcerpt, TakesTheNameAloneWhereNothingIsCalled) {
  EXPECT_EQ(callIn("Tr; (a)"), "Tr");
  EXPECT_EQ(callIn("Tr(a"), "Tr");
  EXPECT_EQ(callIn("Tr"), "Tr");
  EXPECT_EQ(callIn("; Tr(a)"), "");
  EXPECT_EQ(callIn(""), "");
  EXPECT_EQ(callIn("Tr(" + std::string(10000, ' ') + ")"), "Tr");
}

TEST(SourceExcerpt, HoldsTheLinesAroundACallAndMarksIt) {
  const auto lines = excerptOf("one\ntwo\n  Tr(a,\n     b); c\nfive\nsix", 3, 3, 1);
  EXPECT_EQ(marks(lines), (Marks{{2, ""}, {3, "Tr(a,"}, {4, "     b)"}}));
  EXPECT_EQ(lines[2].text, "     b); c");
}

TEST(SourceExcerpt, EndsWhereTheSourceEnds) {
  EXPECT_EQ(marks(excerptOf("Tr(a)\n", 1, 1, 5)), (Marks{{1, "Tr(a)"}, {2, ""}}));
  EXPECT_TRUE(excerptOf("Tr(a)\n", 3, 1, 5).empty());
  EXPECT_TRUE(excerptOf("Tr(a)\n", 0, 1, 5).empty());
  EXPECT_EQ(marks(excerptOf("Tr(a)", 1, 99, 5)), (Marks{{1, ""}}));
}

TEST(SourceExcerpt, CountsLinesOfAllSystems) {
  EXPECT_EQ(marks(excerptOf("a\r\nb\rc\nTr(x)\r\n", 4, 1, 0)), (Marks{{4, "Tr(x)"}}));
}

TEST(SourceExcerpt, CountsColumnsInUnits) {
  EXPECT_EQ(marks(excerptOf("/*ö😀*/Tr(x)", 1, 8, 0)), (Marks{{1, "Tr(x)"}}));
}

TEST(SourceExcerpt, IsReadInTheEncodingThatTheProjectNamesWhereNothingElseTells) {
  InMemoryFiles files;
  files.addFile("/p/a.m",
                "// Gr\xF6\xDF"
                "e\nTr(a)\n");
  const SourcePlace place{FileUrl("/p/a.m"), 2, 1};
  EXPECT_FALSE(readExcerpt(files, place, std::nullopt, 1).ok());
  const auto lines = readExcerpt(files, place, FileEncoding(EightBitEncoding::Latin1), 1);
  ASSERT_TRUE(lines.ok());
  EXPECT_EQ(lines.value()[0].text, "// Größe");
  EXPECT_EQ(marks(lines.value())[1].second, "Tr(a)");
}

TEST(SourceExcerpt, IsReadFromUtf16AndNotFromAFileThatIsGone) {
  InMemoryFiles files;
  files.addFile("/p/a.m", "\xFF\xFET\0r\0(\0a\0)\0"s);
  EXPECT_EQ(marks(readExcerpt(files, {FileUrl("/p/a.m"), 1, 1}, std::nullopt, 1).value()), (Marks{{1, "Tr(a)"}}));
  EXPECT_FALSE(readExcerpt(files, {FileUrl("/p/b.m"), 1, 1}, std::nullopt, 1).ok());
}

TEST(SourceExcerpt, FindsTheLiteralsOfAText) {
  const std::string source = "// \"Open\"\nTr(@\"Open\");\nTr(@\"Open it\"); ö(\"Open\") '\"' \"Open\"";
  const std::vector<SourcePlace> places = placesOfLiteral(source, FileUrl("/p/a.m"), "Open", 9);
  ASSERT_EQ(places.size(), 3U);
  EXPECT_EQ(places[0].line, 2U);
  EXPECT_EQ(places[0].column, 5U);
  EXPECT_EQ(places[1].line, 3U);
  EXPECT_EQ(places[1].column, 19U);
  EXPECT_EQ(places[2].line, 3U);
  EXPECT_EQ(placesOfLiteral(source, FileUrl("/p/a.m"), "Open", 1).size(), 1U);
  EXPECT_TRUE(placesOfLiteral(source, FileUrl("/p/a.m"), "Quit", 9).empty());
}

TEST(SourceExcerpt, KnowsWhatHasBecomeOfASource) {
  const FileStamp stamp{10, 1, 1, 1, 1, 0, 1};
  FileStamp later = stamp;
  later.modified = 2;
  EXPECT_EQ(sourceState(stamp, stamp), SourceState::AsScanned);
  EXPECT_EQ(sourceState(stamp, later), SourceState::Changed);
  EXPECT_EQ(sourceState(stamp, std::nullopt), SourceState::Gone);
  EXPECT_EQ(sourceState(std::nullopt, stamp), SourceState::NotKnown);
}

}  // namespace
}  // namespace glossmill
