#include <gtest/gtest.h>

#include "exchange/ImportPlan.h"
#include "exchange/ImportReport.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"
#include "support/TableRecord.h"

namespace glossmill {
namespace {

using Kind = ImportItem::Kind;

std::shared_ptr<LocalizeString> plainRecord(std::string_view key) {
  auto made = std::make_shared<LocalizeString>();
  made->setName(key);
  return made;
}

std::shared_ptr<LocalizeString> frenchRecord(std::string_view key, std::string_view text) {
  auto made = plainRecord(key);
  store(*made, kFrench, text);
  return made;
}

ExchangeUnit wantedUnit(std::string_view key, std::string_view text, std::string_view table = "") {
  ExchangeUnit made;
  made.key = key;
  made.table = table;
  if (!text.empty()) made.texts = {{0, std::string(text)}};
  return made;
}

ExchangeDocument frenchUnits(std::vector<ExchangeUnit> units) {
  ExchangeDocument made;
  made.languages = {"fr"};
  made.units = std::move(units);
  return made;
}

ImportPlan planOf(std::vector<ExchangeUnit> units, const StringArray& records, ImportScope scope = ImportScope::All,
                  bool takesUnsure = false) {
  return {frenchUnits(std::move(units)), records, {{kFrench}, scope, takesUnsure}};
}

/// "new Open chosen" and the like.
std::vector<std::string> itemLines(const ImportPlan& plan) {
  std::vector<std::string> lines;
  for (const ImportItem& item : plan.items()) {
    const char* const kinds[] = {"new", "changed", "unchanged", "unknown"};
    lines.push_back(std::string(kinds[static_cast<int>(item.kind)]) + " " + item.table + " " + item.key + "=" +
                    item.edit.after.value_or("") + (item.isChosen ? " chosen" : ""));
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(ImportPlan, TellsNewFromChangedUnchangedAndUnknown) {
  const StringArray records = {plainRecord("Add"), frenchRecord("Bold", "Gras"), frenchRecord("Cut", "Couper"),
                               plainRecord("Draw")};
  const ImportPlan made = planOf({wantedUnit("Paste", "Coller"), wantedUnit("Cut", "Trancher"),
                                  wantedUnit("Bold", "Gras"), wantedUnit("Add", "Ajouter"), wantedUnit("Draw", "")},
                                 records);
  EXPECT_EQ(itemLines(made), (Lines{"new  Add=Ajouter chosen", "unchanged  Bold=Gras", "changed  Cut=Trancher chosen",
                                    "unknown  Paste=Coller"}));
  EXPECT_EQ(made.unknownKeys(), 1U);
  EXPECT_EQ(made.items()[2].edit.before, "Couper");
  EXPECT_EQ(made.itemsOf(0).size(), 1U);
  EXPECT_TRUE(made.itemsOf(3).empty());
  EXPECT_EQ(made.edits().size(), 2U);
}

TEST(ImportPlan, ReplacesAnEmptyEntryAsAChange) {
  const ImportPlan made = planOf({wantedUnit("Open", "Ouvrir")}, {frenchRecord("Open", "")});
  EXPECT_EQ(made.items().front().kind, Kind::Changed);
  EXPECT_EQ(made.items().front().edit.before, "");
}

TEST(ImportPlan, ChangesNothingItself) {
  const auto open = plainRecord("Open");
  EXPECT_EQ(planOf({wantedUnit("Open", "Ouvrir")}, {open}).edits().size(), 1U);
  EXPECT_EQ(open->languagesDict().count(), 0U);
}

TEST(ImportPlan, TakesTheLastOfSeveralTextsForOneKey) {
  EXPECT_EQ(itemLines(planOf({wantedUnit("Open", "Ouvrir"), wantedUnit("Open", "Ouverture"), wantedUnit("Open", "")},
                             {plainRecord("Open")})),
            (Lines{"new  Open=Ouverture chosen"}));
}

TEST(ImportPlan, ChoosesOnlyWhatTheScopeTakes) {
  const StringArray records = {plainRecord("Add"), frenchRecord("Cut", "Couper")};
  const std::vector<ExchangeUnit> units = {wantedUnit("Add", "Ajouter"), wantedUnit("Cut", "Trancher")};
  EXPECT_EQ(itemLines(planOf(units, records, ImportScope::OnlyNew)),
            (Lines{"new  Add=Ajouter chosen", "changed  Cut=Trancher"}));
  EXPECT_EQ(itemLines(planOf(units, records, ImportScope::OnlyChanged)),
            (Lines{"new  Add=Ajouter", "changed  Cut=Trancher chosen"}));
}

TEST(ImportPlan, OffersWhatIsUnsureAndTakesItWhenItIsToldTo) {
  ExchangeUnit unsure = wantedUnit("Add", "Ajouter");
  unsure.isUnsure = true;
  EXPECT_EQ(itemLines(planOf({unsure}, {plainRecord("Add")})), (Lines{"new  Add=Ajouter"}));
  EXPECT_EQ(itemLines(planOf({unsure}, {plainRecord("Add")}, ImportScope::All, true)),
            (Lines{"new  Add=Ajouter chosen"}));
}

TEST(ImportPlan, ChoosingAnItemMakesItsEdit) {
  ImportPlan made =
      planOf({wantedUnit("Add", "Ajouter"), wantedUnit("Cut", "Couper")}, {plainRecord("Add"), plainRecord("Cut")});
  made.items()[0].isChosen = false;
  ASSERT_EQ(made.edits().size(), 1U);
  EXPECT_EQ(made.edits().front().after, "Couper");
}

TEST(ImportPlan, FindsAStringByTableAndKeyOrByThePathOfItsFile) {
  ExchangeUnit byPath = wantedUnit("Open", "Ouvert");
  byPath.file = "app/Base.lproj/Knots.strings";
  EXPECT_EQ(itemLines(planOf({wantedUnit("Open", "Ouvrir", "app/Boats"), byPath, wantedUnit("Open", "x", "Boats")},
                             {tableRecord("app/Boats", "Open"), tableRecord("app/Knots", "Open")})),
            (Lines{"new app/Boats Open=Ouvrir chosen", "new app/Knots Open=Ouvert chosen", "unknown Boats Open=x"}));
}

TEST(ImportPlan, WithoutATableFindsTheOnlyStringOfTheKeyAndRejectsSeveral) {
  const StringArray records = {tableRecord("a", "Open"), tableRecord("b", "Open"), tableRecord("b", "Cut")};
  const ImportPlan made = planOf({wantedUnit("Open", "Ouvrir"), wantedUnit("Cut", "Couper")}, records);
  EXPECT_EQ(itemLines(made), (Lines{"new b Cut=Couper chosen"}));
  ASSERT_EQ(made.rejected().size(), 1U);
  EXPECT_EQ(made.rejected().front().sentence,
            "Several tables hold the key “Open”, and the file does not say which it means.");
}

TEST(ImportPlan, WithoutTablesInTheProjectTakesWhatBelongsToLocalizableAndNothingElse) {
  EXPECT_EQ(itemLines(planOf({wantedUnit("Open", "Ouvrir", "app/Localizable"), wantedUnit("Open", "x", "InfoPlist")},
                             {plainRecord("Open")})),
            (Lines{"new app/Localizable Open=Ouvrir chosen", "unknown InfoPlist Open=x"}));
}

TEST(ImportPlan, LeavesLanguagesOutThatNobodyWants) {
  ExchangeDocument made = frenchUnits({wantedUnit("Open", "Ouvrir")});
  made.languages = {"fr", "de"};
  made.units[0].texts.push_back({1, "Öffnen"});
  const ImportPlan german(made, {plainRecord("Open")}, {{std::nullopt, LanguageCode("de")}});
  EXPECT_EQ(itemLines(german), (Lines{"new  Open=Öffnen chosen"}));
}

TEST(ImportPlan, NotesAFileOfWhichNoKeyIsKnown) {
  EXPECT_EQ(planOf({wantedUnit("a", "b")}, {plainRecord("Open")}).notes(),
            (std::vector<ImportNote>{{ImportNote::Kind::OtherProject, ""}}));
  EXPECT_TRUE(planOf({wantedUnit("a", "b"), wantedUnit("Open", "c")}, {plainRecord("Open")}).notes().empty());
  EXPECT_TRUE(planOf({}, {plainRecord("Open")}).notes().empty());
}

TEST(ImportReport, TellsNewFromChangedAndUnchanged) {
  const auto open = plainRecord("Open");
  ImportReport report;
  report.count(editOf(open, kFrench, "Ouvrir"));
  store(*open, kFrench, "");
  report.count(editOf(open, kFrench, "Ouvrir"));
  report.count(editOf(open, kFrench, "Ouvre"));
  store(*open, kFrench, "Ouvrir");
  report.count(editOf(open, kFrench, "Ouvrir"));
  EXPECT_EQ(report.added, 1U);
  EXPECT_EQ(report.changed, 2U);
  EXPECT_EQ(report.unchanged, 1U);
  EXPECT_EQ(report.known(), 4U);
}

}  // namespace
}  // namespace glossmill
