#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "edit/ProjectSaver.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

using Kind = SaveOutcome::Kind;
using Lines = std::vector<std::string>;

/// Texts that are the code of their language, in two pieces.
class CodeTexts : public LanguageTexts {
 public:
  void start(LanguageCode language) override { m_pieces = {"", "\n", language.text()}; }
  std::string_view nextPiece() override {
    m_piece = m_pieces.back();
    if (m_pieces.size() > 1) m_pieces.pop_back();
    return m_piece;
  }

 private:
  Lines m_pieces;
  std::string m_piece;
};

std::shared_ptr<Language> language(const std::string& code, const std::string& path, std::int64_t depth) {
  auto made = std::make_shared<Language>();
  made->setIso639(code);
  made->setLocalizedStringUrl(FileUrl(path));
  made->setUrlDepth(depth);
  return made;
}

class ProjectSaverTest : public testing::Test {
 protected:
  ProjectSaverTest() {
    files.addFile("/x/de.lproj/Localizable.strings", "old");
    files.addDirectory("/x/fr.lproj");
    languages = {language("de", "/x/de.lproj/Localizable.strings", Language::kStringsFile),
                 language("fr", "/x/fr.lproj", 3)};
  }

  bool save() {
    return saveLanguages(files, texts, languages, [this](const SaveOutcome& outcome) {
      outcomes.push_back(outcome.language.iso639() + " " + std::to_string(static_cast<int>(outcome.kind)) +
                         outcome.error.sentence);
      if (onOutcome) onOutcome();
    });
  }
  static std::string line(const std::string& code, Kind kind, const std::string& sentence = "") {
    return code + " " + std::to_string(static_cast<int>(kind)) + sentence;
  }

  InMemoryFiles files;
  CodeTexts texts;
  LanguageArray languages;
  Lines outcomes;
  std::function<void()> onOutcome;
};

TEST_F(ProjectSaverTest, TellsOneOutcomeAFile) {
  EXPECT_TRUE(save());
  EXPECT_EQ(outcomes, (Lines{line("de", Kind::Written), line("fr", Kind::Created)}));
  EXPECT_EQ(files.bytesOf("/x/de.lproj/Localizable.strings"), "de\n");
  EXPECT_EQ(files.bytesOf("/x/fr.lproj/Localizable.strings"), "fr\n");
}

TEST_F(ProjectSaverTest, TellsOfAFileBeforeItWritesTheNext) {
  onOutcome = [this] { EXPECT_EQ(files.written().size(), outcomes.size()); };
  EXPECT_TRUE(save());
  EXPECT_EQ(files.written().size(), 2U);
}

TEST_F(ProjectSaverTest, GoesOnBehindAFileThatCannotBeWritten) {
  files.failWriting("/x/de.lproj/Localizable.strings", "Full.");
  EXPECT_FALSE(save());
  EXPECT_EQ(outcomes, (Lines{line("de", Kind::Failed, "Full."), line("fr", Kind::Created)}));
  EXPECT_EQ(files.bytesOf("/x/de.lproj/Localizable.strings"), "old");
}

TEST_F(ProjectSaverTest, GivesALanguageItsFileAlsoWhenTheDirectoryCannotBeMade) {
  files.remove("/x/fr.lproj");
  files.failCreating("/x/fr.lproj", "No.");
  EXPECT_FALSE(save());
  EXPECT_EQ(outcomes.back(), line("fr", Kind::DirectoryFailed, "No."));
  EXPECT_EQ(languages.back()->urlDepth(), Language::kStringsFile);
  EXPECT_EQ(languages.back()->localizedStringUrl().path(), "/x/fr.lproj/Localizable.strings");
}

TEST_F(ProjectSaverTest, KeepsTheLanguagesAliveWhenTheProjectIsClosedMeanwhile) {
  const std::weak_ptr<Language> last = languages.back();
  onOutcome = [this] { languages.clear(); };
  EXPECT_TRUE(save());
  EXPECT_EQ(outcomes.size(), 2U);
  EXPECT_TRUE(last.expired());
}

}  // namespace
}  // namespace glossmill
