#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/EditedTexts.h"
#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"
#include "support/TableRecord.h"

namespace glossmill {
namespace {

std::vector<std::string> keysOf(const EditedTexts& edited) {
  std::vector<std::string> keys;
  for (const EditedTexts::Text& text : edited.texts()) keys.push_back(text.record->name() + "." + text.language.text());
  return keys;
}

TEST(EditedTexts, HoldsEachOnceInTheOrderOfTheFirstEdits) {
  const auto ebb = tableRecord("a", "Ebb");
  const auto tide = tableRecord("a", "Tide");
  EditedTexts edited;
  for (const auto& record : {tide, ebb, tide}) edited.add(editOf(record, kGerman, "x"));
  edited.add(editOf(ebb, kFrench, "x"));
  EXPECT_EQ(keysOf(edited), (std::vector<std::string>{"Tide.de", "Ebb.de", "Ebb.fr"}));
}

TEST(EditedTexts, ThoseOfASavedFileGo) {
  const auto ebb = tableRecord("a", "Ebb");
  const auto tide = tableRecord("b", "Tide");
  EditedTexts edited;
  edited.add(editOf(ebb, kGerman, "x"));
  edited.add(editOf(ebb, kFrench, "x"));
  edited.add(editOf(tide, kGerman, "x"));
  EXPECT_TRUE(edited.holds("a", kGerman));
  EXPECT_FALSE(edited.holds("b", kFrench));
  edited.removeSaved("a", kGerman);
  EXPECT_FALSE(edited.holds("a", kGerman));
  EXPECT_EQ(keysOf(edited), (std::vector<std::string>{"Ebb.fr", "Tide.de"}));
  edited.add(editOf(ebb, kGerman, "y"));
  EXPECT_EQ(keysOf(edited).back(), "Ebb.de");
  edited.clear();
  EXPECT_TRUE(edited.empty());
}

}  // namespace
}  // namespace glossmill
