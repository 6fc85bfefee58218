#include "checks/FindingKinds.h"
#include "checks/IdenticalCheck.h"

namespace glossmill {
namespace {

using enum FindingKind;

TEST(IdenticalCheck, FindsSourceTextsThatWereLeftAsTheyAre) {
  expectFindings(identicalFindings, {{"Open file", "Open file", {SameAsSource}},
                                     {"Delete %@ now", "Delete %@ now", {SameAsSource}},
                                     {"größte Höhe", "größte Höhe", {SameAsSource}}});
}

TEST(IdenticalCheck, AcceptsWhatHasNoTwoWords) {
  expectFindings(identicalFindings, {{"OK", "OK", {}},
                                     {"%@ %@", "%@ %@", {}},
                                     {"%d KB", "%d KB", {}},
                                     {"1 a 2", "1 a 2", {}},
                                     {"%lu of", "%lu of", {}},
                                     {"", "", {}}});
}

TEST(IdenticalCheck, AcceptsOtherTextsAndVariantsOfTheSameLanguage) {
  expectFindings(identicalFindings, {{"Open file", "Datei öffnen", {}},
                                     {"Open file", "Open file", {}, "en-GB"},
                                     {"Open file", "Open file", {}, "en_AU"}});
}

}  // namespace
}  // namespace glossmill
