#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "strings/CommentRemover.h"
#include "strings/MarkedText.h"
#include "support/Ship.h"

namespace glossmill {
namespace {

TEST(CommentRemover, GivesNothingForTheEmptyText) {
  EXPECT_EQ(removeComments(""), "");
}

TEST(CommentRemover, KeepsTextWithoutComments) {
  EXPECT_EQ(removeComments("\"Open\" = \"Öffnen\";\r\n\n"), "\"Open\" = \"Öffnen\";\r\n\n");
}

TEST(CommentRemover, LeavesAnEmptyLineForABlockComment) {
  EXPECT_EQ(removeComments("/* Menu title */\n\"Open\" = \"Öffnen\";\n"), "\n\"Open\" = \"Öffnen\";\n");
}

TEST(CommentRemover, DropsLineFeedsInsideABlockComment) {
  EXPECT_EQ(removeComments("a/* one\ntwo\n*/b"), "ab");
}

TEST(CommentRemover, JoinsTheNextLineToTheTextBeforeALineComment) {
  EXPECT_EQ(removeComments("\"Open\" = \"Öffnen\"; // menu\n\"Close\" = \"Schließen\";"),
            "\"Open\" = \"Öffnen\"; \"Close\" = \"Schließen\";");
}

TEST(CommentRemover, DropsACarriageReturnThatEndsALineComment) {
  EXPECT_EQ(removeComments("a// b\r\nc"), "ac");
}

TEST(CommentRemover, EndsALineCommentWithTheText) {
  EXPECT_EQ(removeComments("a// b"), "a");
  EXPECT_EQ(removeComments("a//"), "a");
}

TEST(CommentRemover, KeepsSlashesAndStarsInsideAString) {
  EXPECT_EQ(removeComments("\"Path\" = \"a//b\";"), "\"Path\" = \"a//b\";");
  EXPECT_EQ(removeComments("\"a/b/*c*/\""), "\"a/b/*c*/\"");
}

TEST(CommentRemover, IgnoresQuotesInsideComments) {
  EXPECT_EQ(removeComments("/* \" */ /b /* c */"), "  ");
  EXPECT_EQ(removeComments("// \"\n/* c */d"), "d");
}

TEST(CommentRemover, TakesTheCharacterAfterALoneSlashWithIt) {
  EXPECT_EQ(removeComments("a/b"), "a");
  EXPECT_EQ(removeComments("a/bc"), "ac");
  EXPECT_EQ(removeComments("a/\nb"), "ab");
}

TEST(CommentRemover, TakesAQuoteAfterALoneSlashWithoutOpeningAString) {
  EXPECT_EQ(removeComments("/\"a/*b*/c"), "ac");
}

TEST(CommentRemover, DropsASlashThatEndsTheText) {
  EXPECT_EQ(removeComments("a/"), "a");
  EXPECT_EQ(removeComments("/"), "");
}

TEST(CommentRemover, TakesAWholeCharacterOfTheBasicPlaneAfterALoneSlash) {
  EXPECT_EQ(removeComments("/\xC3\xA4z"), "z");
  EXPECT_EQ(removeComments("/\xE2\x82\xAC\xE2\x82\xAC"), "\xE2\x82\xAC");
}

TEST(CommentRemover, LeavesAReplacementForTheSecondHalfOfAPairAfterALoneSlash) {
  EXPECT_EQ(removeComments(std::string("a/") + kShip + "b"),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(removeComments(std::string("/") + kShip + kShip), std::string("\xEF\xBF\xBD") + kShip);
}

TEST(CommentRemover, ReadsASlashAfterTheSwallowedCharacterAnew) {
  EXPECT_EQ(removeComments("/a/*b*/c"), "c");
  EXPECT_EQ(removeComments("/a//b\nc"), "c");
}

TEST(CommentRemover, ClosesAnEmptyBlockComment) {
  EXPECT_EQ(removeComments("a/**/b"), "ab");
}

TEST(CommentRemover, DoesNotCloseABlockCommentAtASwallowedStar) {
  EXPECT_EQ(removeComments("/***/ \"a\" */b"), "b");
  EXPECT_EQ(removeComments("/* a **/ b */c"), "c");
  EXPECT_EQ(removeComments("/* a ***/c"), "c");
}

TEST(CommentRemover, ClosesABlockCommentAtTheSlashAfterAnUnpairedStarOnly) {
  struct Case {
    std::string stars;
    const char* directly;  ///< what is left of "/<stars>/x*/y"
    const char* inText;    ///< what is left of "/* <stars>/x*/y"
  };
  const std::vector<Case> cases = {
      {"*", "y", "x*"}, {"**", "x*", "y"}, {"***", "y", "x*"}, {"****", "x*", "y"}, {"*****", "y", "x*"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(removeComments("/" + one.stars + "/x*/y"), one.directly) << one.stars;
    EXPECT_EQ(removeComments("/* " + one.stars + "/x*/y"), one.inText) << one.stars;
  }
  EXPECT_EQ(removeComments("/* *** */a"), "a");
}

TEST(CommentRemover, DoesNotCloseABlockCommentAtItsOpeningStar) {
  EXPECT_EQ(removeComments("/*/ a */b"), "b");
}

TEST(CommentRemover, DropsTheRestOfATextWhoseBlockCommentStaysOpen) {
  EXPECT_EQ(removeComments("a/* b"), "a");
  EXPECT_EQ(removeComments("a/* b *"), "a");
}

TEST(CommentRemover, SwallowsHalfAPairAfterAStarLikeTheRestOfTheComment) {
  EXPECT_EQ(removeComments(std::string("/**") + kShip + "*/a"), "a");
}

TEST(CommentRemover, KeepsAStarOutsideComments) {
  EXPECT_EQ(removeComments("a * b */"), "a * b *");
}

TEST(CommentRemover, KeepsAStringOpenAfterAnEscapedQuote) {
  EXPECT_EQ(removeComments("\"a\\\"/*b*/\"/*c*/"), "\"a\\\"/*b*/\"");
}

TEST(CommentRemover, KeepsAStringOpenAfterAnEscapedBackslash) {
  EXPECT_EQ(removeComments("\"C:\\\\\"; // kept\n"), "\"C:\\\\\"; // kept\n");
}

TEST(CommentRemover, OpensAStringAtAQuoteThatFollowsABackslash) {
  EXPECT_EQ(removeComments("\\\"//a\"//b"), "\\\"//a\"");
}

TEST(CommentRemover, LooksAtTheCharacterBeforeAQuoteInTheInput) {
  EXPECT_EQ(removeComments("/\\\"a//b\"//c"), "\"a//b\"");
}

TEST(CommentRemover, KeepsEveryCommentAfterALineWithAnOddNumberOfQuotes) {
  const std::string text = "\"Open = \"Öffnen\";\n/* kept */\n// kept\n";
  EXPECT_EQ(removeComments(text), text);
}

TEST(CommentRemover, MarksEveryQuoteAndLineEndOfWhatIsLeft) {
  const CleanText clean = cleanPieces({"/* \"a\"\n */\"b\\\"c\"\n// \"\n\"d\n\""});
  EXPECT_EQ(clean.text, "\"b\\\"c\"\n\"d\n\"");
  EXPECT_EQ(clean.quotes, (std::vector<std::size_t>{0, 3, 5, 7, 10}));
  EXPECT_TRUE(clean.lineEnds == (std::vector<CleanText::LineEnd>{{6, 3}, {9, 4}}));
}

TEST(CommentRemover, AppendsToWhatWasCleanedBefore) {
  CommentRemover remover;
  CleanText clean;
  remover.feed("\"a", clean);
  remover.feed("\n\"", clean);
  expectSame(clean, marked("\"a\n\""));
}

TEST(CommentRemover, GoesOnInTheSameStateAfterItsOutputWasTakenAway) {
  CommentRemover remover;
  CleanText clean;
  remover.feed("\"a\n/*", clean);
  clean = {};
  remover.feed("*/\"", clean);
  expectSame(clean, marked("*/\""));
}

TEST(CommentRemover, RemembersTheBackslashAcrossAnEmptyPiece) {
  expectClean({"\"a\\", "", "\"//b"}, "\"a\\\"//b");
}

}  // namespace
}  // namespace glossmill
