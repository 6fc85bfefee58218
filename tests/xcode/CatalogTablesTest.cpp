#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "model/EditDoor.h"
#include "model/TranslationCounts.h"
#include "support/InMemoryFiles.h"
#include "xcode/CatalogDocument.h"
#include "xcode/CatalogSave.h"
#include "xcode/StringsSave.h"
#include "xcode/XcodeScan.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view kProjectFile = R"({ objects = {
  P = { isa = PBXProject; mainGroup = G; targets = (); developmentRegion = en; };
  G = { isa = PBXGroup; children = (M, C); };
  M = { isa = PBXFileReference; path = Main.m; };
  C = { isa = PBXFileReference; path = Localizable.xcstrings; };
}; rootObject = P; })";

constexpr std::string_view kTablesCatalog = R"({
  "sourceLanguage" : "en",
  "strings" : {
    "%lld boats" : {
      "comment" : "How many",
      "localizations" : {
        "en" : {
          "variations" : {
            "plural" : {
              "one" : {
                "stringUnit" : {
                  "state" : "new",
                  "value" : "%lld boat"
                }
              },
              "other" : {
                "stringUnit" : {
                  "state" : "new",
                  "value" : "%lld boats"
                }
              }
            }
          }
        }
      }
    },
    "Anchor" : {
      "localizations" : {
        "ru" : {
          "stringUnit" : {
            "state" : "needs_review",
            "value" : "Якорь"
          }
        }
      }
    },
    "GM" : {
      "shouldTranslate" : false
    },
    "Old" : {
      "extractionState" : "stale",
      "localizations" : {
        "ru" : {
          "stringUnit" : {
            "state" : "translated",
            "value" : "Старый"
          }
        }
      }
    }
  },
  "version" : "1.0"
})";

class CatalogTablesTest : public testing::Test, private ScanListener {
 protected:
  CatalogTablesTest() {
    m_door.addObserver([this](const Edit& edit, const EditStep&) { m_edited.add(edit); });
    m_files.addFile("/p/App.xcodeproj/project.pbxproj", kProjectFile);
    m_files.addFile("/p/Main.m",
                    "NSLocalizedString(@\"Anchor\", nil); NSLocalizedString(@\"Quay\", @\"Where it lies\");");
    m_files.addFile("/p/Localizable.xcstrings", kTablesCatalog);
  }

  /// Rows as "table key = source".
  Lines scan() {
    m_result = ScanResult();
    const ScanInput input{m_files, m_isoTable, m_canceled, *this, m_options};
    readXcodeSources(FileUrl("/p"), input, m_memory, m_result);
    readXcodeStrings(input, m_result);
    Lines rows;
    for (const std::shared_ptr<LocalizeString>& record : records()) {
      const StoredText source = record->tableRow()->sourceText;
      rows.push_back(record->tableRow()->table->id + " " + record->name() + " = " +
                     std::string(source ? source.view() : "?"));
    }
    return rows;
  }

  const StringArray& records() const { return m_result.stringList.records(); }

  std::shared_ptr<LocalizeString> row(const std::string& name) const {
    for (const std::shared_ptr<LocalizeString>& record : records()) {
      if (record->name() == name) return record;
    }
    ADD_FAILURE() << name;
    return std::make_shared<LocalizeString>();
  }

  Lines missingIn(const char* language) const {
    Lines names;
    for (const std::shared_ptr<LocalizeString>& record : records()) {
      if (record->isMissing(LanguageCode(language))) names.push_back(record->name());
    }
    return names;
  }

  Lines problems() const {
    Lines kinds;
    for (const Problem& problem : m_result.problems) {
      kinds.push_back(problem.file.path() + " " + std::string(problem.kind) + " " + std::to_string(problem.line));
    }
    return kinds;
  }

  void edit(const std::string& name, const char* language, std::optional<std::string> text) {
    m_door.applyEdit(EditKind::Typing, editOf(row(name), LanguageCode(language), std::move(text)));
  }

  /// The bytes of the one file that a save writes, or why it cannot.
  std::string saved() {
    const SaveInput input{m_files, records(), *m_result.languagesList, m_result.tables, m_edited};
    EXPECT_TRUE(planStringsSave(input).empty());
    m_plan = planCatalogSave(input);
    if (m_plan.size() != 1) return "files: " + std::to_string(m_plan.size());
    const BytePieces pieces = m_plan.front().bytes();
    std::string bytes;
    Result<std::string_view> piece = pieces();
    for (; piece && !piece.value().empty(); piece = pieces()) bytes += piece.value();
    return piece ? bytes : "! " + piece.error().sentence;
  }

  static std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result(text);
    const std::size_t at = result.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return result.replace(at, from.size(), to);
  }

  InMemoryFiles m_files;
  IsoTable m_isoTable;
  CancelFlag m_canceled;
  ProjectOptions m_options;
  ScanMemory m_memory;
  ScanResult m_result;
  EditDoor m_door;
  EditedTexts m_edited;
  std::vector<FileText> m_plan;

 private:
  void happened(const ScanEvent&) override {}
};

TEST_F(CatalogTablesTest, ACatalogIsATableWithItsVariationsBelowTheirKeys) {
  EXPECT_EQ(scan(), (Lines{"Localizable Anchor = Anchor", "Localizable Quay = Quay", "Localizable %lld boats = ?",
                           "Localizable %lld boats ▸ one = %lld boat", "Localizable %lld boats ▸ few = %lld boats",
                           "Localizable %lld boats ▸ many = %lld boats", "Localizable %lld boats ▸ other = %lld boats",
                           "Localizable GM = GM", "Localizable Old = Old"}));
  EXPECT_TRUE(problems().empty());
  ASSERT_EQ(m_result.languagesList->size(), 2U);
  EXPECT_EQ(m_result.languagesList->back()->iso639(), "ru");
  EXPECT_EQ(row("%lld boats ▸ few")->comment(), "How many");
  EXPECT_EQ(row("Anchor")->useCount(), 1);
}

TEST_F(CatalogTablesTest, EachLanguageNeedsItsOwnPluralCategories) {
  scan();
  EXPECT_EQ(missingIn("ru"),
            (Lines{"Quay", "%lld boats ▸ one", "%lld boats ▸ few", "%lld boats ▸ many", "%lld boats ▸ other"}));
  EXPECT_EQ(missingIn("en"), (Lines{"Quay"}));
}

TEST_F(CatalogTablesTest, CountsAreThoseOfTheRows) {
  scan();
  TranslationCounts counts;
  for (const char* const code : {"en", "ru"}) {
    EXPECT_EQ(counts.missing(LanguageCode(code), records()), missingIn(code).size()) << code;
  }
  const Edit needed = editOf(row("%lld boats ▸ few"), LanguageCode("ru"), "%lld лодки");
  m_door.applyEdit(EditKind::Typing, needed);
  counts.adjust(needed);
  const Edit unneeded = editOf(row("%lld boats"), LanguageCode("ru"), "%lld лодок");
  m_door.applyEdit(EditKind::Typing, unneeded);
  counts.adjust(unneeded);
  EXPECT_EQ(counts.missing(LanguageCode("ru"), records()), 4U);
  EXPECT_EQ(missingIn("ru").size(), 4U);
}

TEST_F(CatalogTablesTest, StaleKeysAreUnusedUnlessACallNamesThem) {
  scan();
  EXPECT_TRUE(row("Old")->tableRow()->isUnused);
  EXPECT_FALSE(row("GM")->tableRow()->isUnused);
  m_files.addFile("/p/Main.m", "NSLocalizedString(@\"Old\", nil);");
  scan();
  EXPECT_FALSE(row("Old")->tableRow()->isUnused);
}

TEST_F(CatalogTablesTest, StatesAreKnownByLanguage) {
  scan();
  const CatalogRow& anchor = *row("Anchor")->tableRow()->catalog;
  EXPECT_EQ(anchor.stateIn(LanguageCode("ru")), TextState::NeedsReview);
  EXPECT_EQ(anchor.stateIn(LanguageCode("en")), std::nullopt);
  EXPECT_FALSE(row("GM")->tableRow()->catalog->shouldTranslate);
  EXPECT_EQ(row("Quay")->tableRow()->catalog, nullptr);
}

TEST_F(CatalogTablesTest, WithoutAnEditNothingIsWritten) {
  scan();
  EXPECT_EQ(saved(), "files: 0");
}

TEST_F(CatalogTablesTest, AnEditWritesTheOneFileWithAllItsLanguages) {
  scan();
  edit("Anchor", "ru", "Якорёк");
  edit("Anchor", "en", "The anchor");
  const CatalogDocument after(saved());
  ASSERT_FALSE(after.error());
  EXPECT_EQ(after.keyAt(after.keys()[1]).units,
            (std::vector<CatalogUnit>{{"en", {}, "translated", "The anchor"}, {"ru", {}, "translated", "Якорёк"}}));
  ASSERT_EQ(m_plan.size(), 1U);
  EXPECT_EQ(m_plan.front().file, FileUrl("/p/Localizable.xcstrings"));
  EXPECT_EQ(m_plan.front().language, "en");
  EXPECT_EQ(m_plan.front().otherLanguages, Lines{"ru"});
  EXPECT_EQ(m_plan.front().entriesBefore, 4U);
  EXPECT_EQ(m_plan.front().entriesAfter, 5U);
}

TEST_F(CatalogTablesTest, AnEditThatIsTakenBackLeavesEveryByte) {
  scan();
  edit("Anchor", "ru", "Якорёк");
  edit("Anchor", "ru", "Якорь");
  EXPECT_EQ(saved(), kTablesCatalog);
}

TEST_F(CatalogTablesTest, AVariationIsWrittenBelowItsKey) {
  scan();
  edit("%lld boats ▸ few", "ru", "%lld лодки");
  const CatalogDocument after(saved());
  ASSERT_FALSE(after.error());
  EXPECT_EQ(after.keyAt(after.keys()[0]).units.back(),
            (CatalogUnit{"ru", {{"plural", "few"}}, "translated", "%lld лодки"}));
}

TEST_F(CatalogTablesTest, AKeyThatOnlyACallKnowsIsAdded) {
  scan();
  edit("Quay", "ru", "Причал");
  const CatalogDocument after(saved());
  ASSERT_EQ(after.keys().size(), 5U);
  const CatalogKey key = after.keyAt(after.keys()[4]);
  EXPECT_EQ(key.key, "Quay");
  EXPECT_EQ(key.comment, "Where it lies");
}

TEST_F(CatalogTablesTest, AStaleKeyWhoseTextsAreRemovedGoes) {
  scan();
  edit("Old", "ru", std::nullopt);
  const CatalogDocument after(saved());
  EXPECT_EQ(after.keys().size(), 3U);
}

TEST_F(CatalogTablesTest, AMistakeIsReportedAndNothingIsWritten) {
  m_files.addFile("/p/Localizable.xcstrings", replaced(kTablesCatalog, "\"version\"", "version"));
  scan();
  EXPECT_EQ(problems(), Lines{"/p/Localizable.xcstrings strings-syntax 52"});
  edit("Anchor", "ru", "x");
  EXPECT_EQ(saved().substr(0, 27), "! It has a mistake in line ");
}

TEST_F(CatalogTablesTest, StringsFilesOfTheSameTableAreReadTooAndReported) {
  m_files.addFile("/p/App.xcodeproj/project.pbxproj",
                  replaced(replaced(kProjectFile, "(M, C)", "(M, C, S)"), "}; rootObject",
                           "S = { isa = PBXFileReference; path = en.lproj/Localizable.strings; }; }; rootObject"));
  m_files.addFile("/p/en.lproj/Localizable.strings", "Quay = \"The quay\";");
  const Lines rows = scan();
  EXPECT_EQ(problems(), Lines{"/p/Localizable.xcstrings catalog-and-strings 0"});
  EXPECT_EQ(std::count(rows.begin(), rows.end(), "Localizable Quay = The quay"), 1);
  EXPECT_EQ(std::count(rows.begin(), rows.end(), "Localizable.xcstrings Anchor = Anchor"), 1);
  EXPECT_EQ(std::count(rows.begin(), rows.end(), "Localizable.xcstrings Quay = Quay"), 0);
  EXPECT_EQ(row("Anchor")->useCount(), 1);
}

TEST_F(CatalogTablesTest, ACatalogOfInterfaceFilesBelongsToTheDirectoryAroundItsLproj) {
  m_files.addFile("/p/App.xcodeproj/project.pbxproj",
                  replaced(kProjectFile, "Localizable.xcstrings", "mul.lproj/Main.xcstrings"));
  m_files.addFile("/p/mul.lproj/Main.xcstrings", kTablesCatalog);
  const Lines rows = scan();
  EXPECT_EQ(std::count(rows.begin(), rows.end(), "Main GM = GM"), 1);
  EXPECT_EQ(m_result.languagesList->size(), 2U);
}

}  // namespace
}  // namespace glossmill
