#include "checks/FindingKinds.h"
#include "checks/InvisibleCheck.h"

namespace glossmill {
namespace {

using enum FindingKind;

TEST(InvisibleCheck, AcceptsWhatCanBeSeen) {
  expectFindings(invisibleFindings, {{"a", "größer – „b“ …", {}},
                                     {"a", "a\tb\nc\r\nd", {}},
                                     {"a", "\u200Ea\u200F", {}},
                                     {"a", "\u202Aa\u202C \u2067b\u2069", {}},
                                     {"a", "", {}}});
}

TEST(InvisibleCheck, FindsControlCharacters) {
  expectFindings(invisibleFindings, {{"a", "a\x01", {ControlCharacter}},
                                     {"a", "a\x7F\x1B[", {ControlCharacter, ControlCharacter}},
                                     {"a", "a\u0085", {ControlCharacter}}});
  EXPECT_EQ(invisibleFindings({"a", "ab\x01", "de", "en", TextForm::Values}),
            (std::vector<Finding>{{Check::Invisible, Severity::Warning, ControlCharacter, "U+0001", "", {}, {2, 1}}}));
}

TEST(InvisibleCheck, FindsDirectionsLeftOpen) {
  expectFindings(invisibleFindings, {{"a", "\u202Ba", {DirectionLeftOpen}},
                                     {"a", "\u202E\u202Aa\u202C", {DirectionLeftOpen}},
                                     {"a", "\u2068a\u202C", {DirectionLeftOpen}},
                                     {"a", "\u2066a\u2067b\u2069", {DirectionLeftOpen}},
                                     {"a", "a\u202C", {}}});
}

TEST(InvisibleCheck, FindsReplacementCharacters) {
  expectFindings(invisibleFindings, {{"a", "gr\uFFFDer", {ReplacementCharacter}}, {"a", "fi\uFB01", {}}});
}

TEST(InvisibleCheck, FindsNoBreakSpacesWhereTheSourceTextHasBlanks) {
  expectFindings(invisibleFindings, {{"a b", "c\u00A0d", {NoBreakSpace}},
                                     {"a b", "c\u202Fd", {NoBreakSpace}},
                                     {"a\u00A0b", "c\u00A0d", {}},
                                     {"ab", "c\u00A0d", {}},
                                     {"a b", "c\u00A0!", {NoBreakSpace}, "de"}});
}

TEST(InvisibleCheck, KnowsWhereFrenchWantsSpace) {
  expectFindings(invisibleFindings, {{"a b", "a\u00A0: \u00AB\u00A0b\u00A0\u00BB\u202F!", {}, "fr"},
                                     {"a b", "a\u00A0? b\u00A0;", {}, "fr-CA"},
                                     {"a b", "c\u00A0d", {NoBreakSpace}, "fr"}});
}

}  // namespace
}  // namespace glossmill
