#include "checks/FindingKinds.h"
#include "checks/WhiteSpaceCheck.h"

namespace glossmill {
namespace {

using enum FindingKind;

TEST(WhiteSpaceCheck, AcceptsTheSameWhiteSpace) {
  expectFindings(whiteSpaceFindings, {{"a", "b", {}},
                                      {" a ", " b ", {}},
                                      {"a\n", "b\n", {}},
                                      {"a\nb", "c\nd", {}},
                                      {"a\r\nb", "c\nd", {}},
                                      {"a\\nb", "c\\nd", {}, "de", TextForm::Raw},
                                      {"a ", "b\u00A0", {}},
                                      {"größe ", "straße ", {}}});
}

TEST(WhiteSpaceCheck, FindsOtherWhiteSpaceAtTheEnds) {
  expectFindings(whiteSpaceFindings, {{" a", "b", {WhiteSpaceInFront}},
                                      {"a", " b", {WhiteSpaceInFront}},
                                      {"a", "  b ", {WhiteSpaceInFront, WhiteSpaceBehind}},
                                      {"a: ", "b:", {WhiteSpaceBehind}},
                                      {"a", "b\n", {WhiteSpaceBehind}},
                                      {"a\n", "b ", {WhiteSpaceBehind}},
                                      {"a", "ä\u00A0", {WhiteSpaceBehind}},
                                      {"a\\n", "b", {WhiteSpaceBehind}, "de", TextForm::Raw}});
}

TEST(WhiteSpaceCheck, FindsOtherNumbersOfLineBreaksInside) {
  expectFindings(whiteSpaceFindings, {{"a\nb", "c d", {LineBreaks}},
                                      {"a b", "c\nd", {LineBreaks}},
                                      {"a\nb", "c\n\nd", {LineBreaks}},
                                      {"a b", "c\u2028d", {LineBreaks}},
                                      {"a\\nb", "c d", {LineBreaks}, "de", TextForm::Raw},
                                      {"a\\nb", "c d", {}, "de", TextForm::Values}});
}

TEST(WhiteSpaceCheck, LetsAFullWidthMarkBringItsBlank) {
  expectFindings(whiteSpaceFindings, {{"Name: ", "名前：", {}, "ja"},
                                      {"Name:  ", "名前：", {WhiteSpaceBehind}, "ja"},
                                      {"Name: ", "名前:", {WhiteSpaceBehind}, "ja"}});
}

TEST(WhiteSpaceCheck, HasNothingToCompareInTextsOfWhiteSpaceOnly) {
  expectFindings(whiteSpaceFindings, {{" ", "a", {}}, {"a", "  ", {}}, {"", "a ", {}}, {"a ", "", {}}});
}

TEST(WhiteSpaceCheck, MarksBothEnds) {
  EXPECT_EQ(whiteSpaceFindings({"a ", "b\u00A0 ", "de", "en", TextForm::Values}),
            (std::vector<Finding>{{Check::WhiteSpace, Severity::Warning, WhiteSpaceBehind, "", "", {1, 1}, {1, 3}}}));
}

}  // namespace
}  // namespace glossmill
