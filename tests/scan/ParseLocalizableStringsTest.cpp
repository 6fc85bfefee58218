#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "model/Overloaded.h"
#include "scan/ParseLocalizableStrings.h"
#include "support/InMemoryFiles.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// Phase two in a project with the strings "Open", "Shut" and "Quit", and what it tells.
class ParseLocalizableStrings : public testing::Test, private ScanListener {
 protected:
  ParseLocalizableStrings() { result.stringList.add({{"Open", ""}, {"Shut", ""}, {"Quit", ""}}, FileUrl("/P/a.m")); }

  void addLanguage(LanguageCode code, std::string_view stringsFile) {
    const FileUrl file("/P/" + code.text() + ".strings");
    files.addFile(file.path(), stringsFile);
    auto language = std::make_shared<Language>();
    language->setIso639(code.text());
    language->setLocalizedStringUrl(file);
    language->setUrlDepth(Language::kStringsFile);
    result.languagesList->push_back(std::move(language));
  }

  ScanEnd parse() { return parseLocalizableStringsList({files, isoTable, canceled, *this, options}, result); }
  void cancelWhen(std::string_view line) { m_cancelLine = line; }

  /// The translations of the three strings, "-" for none.
  Lines translations(LanguageCode code) const {
    Lines texts;
    for (const auto& record : result.stringList.records()) {
      texts.emplace_back(record->languagesDict().find(code).value_or("-"));
    }
    return texts;
  }

  InMemoryFiles files;
  IsoTable isoTable;
  CancelFlag canceled;
  ProjectOptions options;
  ScanResult result;
  Lines heard;

 private:
  void happened(const ScanEvent& event) override {
    const auto lineOf = Overloaded{
        [](const StringsFileBegins& it) { return "reading " + std::string(it.file.lastPathComponent()); },
        [](const LinesCounted& it) { return "lines " + std::to_string(it.lines); },
        [](const EntryRejected& it) { return std::to_string(it.line) + " rejected " + std::string(it.text); },
        [](const EntryWithoutMatch& it) { return std::to_string(it.line) + " unmatched " + std::string(it.key); },
        [](const StringsFileRead& it) { return "took " + std::to_string(it.entries); },
        [](const StringsFileUnread& it) { return "unread " + it.error.sentence; },
        [](const StringsFileMissing& it) { return "missing " + it.language.iso639(); },
        [](const auto&) { return std::string("something else"); },
    };
    heard.push_back(std::visit(lineOf, event));
    if (heard.back() == m_cancelLine) canceled.set(true);
  }

  std::string m_cancelLine;
};

constexpr const char* kGermanFile =
    "\"Open\" = \"Auf\";\nx\n\"Shut\" = \"Zu\";\n\"Go\" = \"Los\";\n\"Quit\" = \"Ende\";\n";

TEST_F(ParseLocalizableStrings, GivesTheTranslationsToTheRecords) {
  addLanguage(kGerman, kGermanFile);
  addLanguage(kFrench, "\"Quit\" = \"Fin\";");
  EXPECT_EQ(parse(), ScanEnd::Complete);
  EXPECT_EQ(translations(kGerman), (Lines{"Auf", "Zu", "Ende"}));
  EXPECT_EQ(translations(kFrench), (Lines{"-", "-", "Fin"}));
}

TEST_F(ParseLocalizableStrings, TellsTheNumberOfLinesBeforeAnythingOfALine) {
  addLanguage(kGerman, kGermanFile);
  parse();
  EXPECT_EQ(heard, (Lines{"reading de.strings", "lines 6", "2 rejected x", "4 unmatched Go", "took 3"}));
}

TEST_F(ParseLocalizableStrings, StoresNothingOfAFileWhenItIsCanceledBeforeItsLines) {
  addLanguage(kGerman, kGermanFile);
  addLanguage(kFrench, "\"Quit\" = \"Fin\";");
  cancelWhen("lines 1");
  EXPECT_EQ(parse(), ScanEnd::Canceled);
  EXPECT_EQ(translations(kGerman), (Lines{"Auf", "Zu", "Ende"}));
  EXPECT_EQ(translations(kFrench), (Lines{"-", "-", "-"}));
}

TEST_F(ParseLocalizableStrings, EndsWhenItIsCanceledBeforeTheLinesOfTheLastFile) {
  addLanguage(kGerman, "");
  cancelWhen("lines 1");
  EXPECT_EQ(parse(), ScanEnd::Canceled);
}

TEST_F(ParseLocalizableStrings, TellsTheNumberOfLinesAlsoWhenItIsCanceledWhileItReads) {
  addLanguage(kGerman, kGermanFile);
  cancelWhen("reading de.strings");
  EXPECT_EQ(parse(), ScanEnd::Canceled);
  EXPECT_EQ(heard, (Lines{"reading de.strings", "lines 6"}));
  EXPECT_EQ(translations(kGerman), (Lines{"-", "-", "-"}));
}

TEST_F(ParseLocalizableStrings, KeepsWhatWasStoredBeforeTheLineAtWhichItIsCanceled) {
  addLanguage(kFrench, "\"Quit\" = \"Fin\";");
  addLanguage(kGerman, kGermanFile);
  cancelWhen("4 unmatched Go");
  EXPECT_EQ(parse(), ScanEnd::Canceled);
  EXPECT_EQ(translations(kFrench), (Lines{"-", "-", "Fin"}));
  EXPECT_EQ(translations(kGerman), (Lines{"Auf", "Zu", "-"}));
}

TEST_F(ParseLocalizableStrings, StoresNoLineBehindTheOneAtWhichItIsCanceled) {
  addLanguage(kGerman, kGermanFile);
  cancelWhen("2 rejected x");
  EXPECT_EQ(parse(), ScanEnd::Canceled);
  EXPECT_EQ(translations(kGerman), (Lines{"Auf", "-", "-"}));
  EXPECT_EQ(heard.back(), "2 rejected x");
}

TEST_F(ParseLocalizableStrings, IsCompleteWhenItIsCanceledAtItsVeryLastLine) {
  addLanguage(kGerman, "\"Open\" = \"Auf\";\nx");
  cancelWhen("2 rejected x");
  EXPECT_EQ(parse(), ScanEnd::Complete);
  EXPECT_EQ(translations(kGerman), (Lines{"Auf", "-", "-"}));
}

TEST_F(ParseLocalizableStrings, EndsBeforeTheNextLanguageWhenItIsCanceledAtTheLastLineOfAFile) {
  addLanguage(kGerman, "\"Open\" = \"Auf\";\nx");
  addLanguage(kFrench, "\"Quit\" = \"Fin\";");
  cancelWhen("2 rejected x");
  EXPECT_EQ(parse(), ScanEnd::Canceled);
  EXPECT_EQ(heard, (Lines{"reading de.strings", "lines 2", "2 rejected x", "took 1"}));
  EXPECT_EQ(translations(kGerman), (Lines{"Auf", "-", "-"}));
}

TEST_F(ParseLocalizableStrings, GoesOnBehindAFileThatIsMissingOrCannotBeRead) {
  addLanguage(kGerman, "");
  addLanguage(kFrench, "\"Quit\" = \"Fin\";");
  result.languagesList->insert(result.languagesList->begin(), std::make_shared<Language>());
  result.languagesList->front()->setIso639("it");
  files.failOpening("/P/de.strings", "Permission denied.");
  EXPECT_EQ(parse(), ScanEnd::Complete);
  EXPECT_EQ(heard, (Lines{"missing it", "reading de.strings", "unread Permission denied.", "reading fr.strings",
                          "lines 1", "took 1"}));
  EXPECT_EQ(translations(kFrench), (Lines{"-", "-", "Fin"}));
}

}  // namespace
}  // namespace glossmill
