#include "checks/FindingKinds.h"
#include "checks/PunctuationCheck.h"

namespace glossmill {
namespace {

using enum FindingKind;

TEST(PunctuationCheck, AcceptsMarksOfTheSameKind) {
  expectFindings(punctuationFindings, {{"Done.", "Fertig.", {}},
                                       {"Done.", "完了。", {}, "ja"},
                                       {"Sure?", "هل أنت متأكد؟", {}, "ar"},
                                       {"Sure?", "Σίγουρα;", {}, "el"},
                                       {"Sure?", "Σίγουρα\u037E", {}, "el"},
                                       {"Done.", "समाप्त।", {}, "hi"},
                                       {"Name:", "Nom\u00A0:", {}, "fr"},
                                       {"Open...", "Öffnen…", {}},
                                       {"Open…", "開く...", {}, "ja"},
                                       {"\"Done.\"", "„Fertig“.", {}},
                                       {"Done. ", "Fertig.\n", {}},
                                       {"Stop!", "停止！", {}, "zh-Hans"}});
}

TEST(PunctuationCheck, FindsMarksOfAnotherKind) {
  expectFindings(punctuationFindings, {{"Sure?", "Sicher.", {OtherClosingMark}},
                                       {"Name:", "Name.", {OtherClosingMark}},
                                       {"Done.", "Fertig!", {OtherClosingMark}},
                                       {"Open…", "Öffnen.", {OtherClosingMark}},
                                       {"Sure?", "Sicher;", {OtherClosingMark}},
                                       {"Done.", "完了、", {OtherClosingMark}, "ja"},
                                       {"Sure? ", "Sicher.\"", {OtherClosingMark}}});
}

TEST(PunctuationCheck, DoesNotAskForMarksThatAreLeftOut) {
  expectFindings(punctuationFindings,
                 {{"Done.", "เสร็จแล้ว", {}, "th"}, {"Done", "Fertig.", {}}, {"", ".", {}}, {".", "", {}}});
}

TEST(PunctuationCheck, MarksBothMarks) {
  EXPECT_EQ(punctuationFindings({"Sure?", "Ja 。", "ja", "en", TextForm::Values}),
            (std::vector<Finding>{{Check::Punctuation, Severity::Info, OtherClosingMark, "。", "?", {4, 1}, {3, 3}}}));
}

TEST(PunctuationCheck, MarksAllDotsOfAnEllipsis) {
  EXPECT_EQ(punctuationFindings({"Done.", "Fertig..", "de", "en", TextForm::Values}),
            (std::vector<Finding>{{Check::Punctuation, Severity::Info, OtherClosingMark, "..", ".", {4, 1}, {6, 2}}}));
}

TEST(PunctuationCheck, LooksAtTheEndOfLongTextsOnly) {
  const std::string filling(100, 'a');
  expectFindings(punctuationFindings, {{filling + "?", filling + "ä.", {OtherClosingMark}}});
}

}  // namespace
}  // namespace glossmill
