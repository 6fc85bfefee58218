#include "checks/FindingKinds.h"
#include "checks/IdenticalCheck.h"

namespace glossmill {
namespace {

using enum FindingKind;
using Kinds = std::vector<FindingKind>;

std::vector<Finding> findSame(const CheckedText& text) {
  return identicalFindings(text, {});
}

/// What is found in a German text beside those of other languages.
Kinds foundBeside(std::string_view text, const std::vector<std::pair<std::string_view, std::string_view>>& others) {
  const EachTranslation translations = [&](const TakeTranslation& take) {
    take("en", text);
    take("de", text);
    for (const auto& [language, other] : others) take(language, other);
  };
  return kindsOf(identicalFindings({text, text, "de", "en", TextForm::Values}, translations));
}

TEST(IdenticalCheck, FindsSourceTextsThatWereLeftAsTheyAre) {
  expectFindings(findSame, {{"Open file", "Open file", {SameAsSource}},
                            {"Delete %@ now", "Delete %@ now", {SameAsSource}},
                            {"größte Höhe", "größte Höhe", {SameAsSource}}});
}

TEST(IdenticalCheck, AcceptsWhatHasNoTwoWords) {
  expectFindings(findSame, {{"OK", "OK", {}},
                            {"%@ %@", "%@ %@", {}},
                            {"%d KB", "%d KB", {}},
                            {"1 a 2", "1 a 2", {}},
                            {"%lu of", "%lu of", {}},
                            {"", "", {}}});
}

TEST(IdenticalCheck, AcceptsOtherTextsAndVariantsOfTheSameLanguage) {
  expectFindings(findSame, {{"Open file", "Datei öffnen", {}},
                            {"Open file", "Open file", {}, "en-GB"},
                            {"Open file", "Open file", {}, "en_AU"}});
}

TEST(IdenticalCheck, ANameIsFoundWhereMostOtherLanguagesHaveAnotherText) {
  EXPECT_EQ(foundBeside("Add Child", {{"fr", "Ajouter un enfant"}, {"it", "Aggiungi"}, {"es", "Add Child"}}),
            Kinds{SameAsSource});
  EXPECT_EQ(foundBeside("Dolby Surround", {{"fr", "Dolby Surround"}, {"ja", "ドルビーサラウンド"}}), Kinds());
  EXPECT_EQ(
      foundBeside(
          "Dolby Surround",
          {{"fr", "Son Dolby"}, {"it", "Dolby Surround"}, {"es", "Dolby Surround"}, {"ja", "ドルビーサラウンド"}}),
      Kinds());
  EXPECT_EQ(foundBeside("Dolby Surround", {}), Kinds());
  EXPECT_EQ(foundBeside("Add Child", {{"fr", "Ajouter"}, {"de-AT", "Dazu"}, {"en-GB", "Append"}, {"it", ""}}), Kinds());
}

TEST(IdenticalCheck, ASentenceIsFoundWhateverOthersHave) {
  EXPECT_EQ(foundBeside("Choose the default folder for exports.", {}), Kinds{SameAsSource});
  EXPECT_EQ(foundBeside("Copyright \u00A9 2012 Mill GmbH. All rights are reserved.", {}), Kinds());
}

TEST(IdenticalCheck, AbbreviationsVariablesAndPlaceholdersAreNoWords) {
  expectFindings(findSame, {{"480p NTSC SD", "480p NTSC SD", {}},
                            {"$(product_name) of", "$(product_name) of", {}},
                            {"KEY_ERROR the", "KEY_ERROR the", {}},
                            {"snake_case name", "snake_case name", {}},
                            {"Text Cell", "Text Cell", {}}});
}

}  // namespace
}  // namespace glossmill
