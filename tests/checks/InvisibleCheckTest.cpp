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

TEST(InvisibleCheck, FindsNoBreakSpacesBetweenWordsWhereTheSourceTextHasBlanks) {
  expectFindings(invisibleFindings, {{"a b", "to\u00A0do", {NoBreakSpace}},
                                     {"a b", "to\u202Fdo", {NoBreakSpace}},
                                     {"a b", "größe\u00A0über", {NoBreakSpace}},
                                     {"a b", "to\u00A0(do)", {NoBreakSpace}},
                                     {"a b", "to\u00A0do", {NoBreakSpace}, "fr"},
                                     {"a\u00A0b", "to\u00A0do", {}},
                                     {"ab", "to\u00A0do", {}}});
}

TEST(InvisibleCheck, AcceptsNoBreakSpacesBesideMarksNumbersSpecifiersAndShortWords) {
  expectFindings(invisibleFindings, {{"a b", "an\u00A0: \u00AB\u00A0be\u00A0\u00BB\u202F!", {}, "fr"},
                                     {"a b", "an\u00A0? be\u00A0;", {}, "fr-CA"},
                                     {"a b", "Öffnen\u00A0…", {}},
                                     {"a b", "Livellu\u00A0: an", {}, "co"},
                                     {"a b", "50\u00A0% an", {}},
                                     {"a b", "Mac\u00A05", {}},
                                     {"a %d b", "an %d\u00A0kbps", {}},
                                     {"a b", "k\u00A0souboru", {}, "cs"}});
}

}  // namespace
}  // namespace glossmill
