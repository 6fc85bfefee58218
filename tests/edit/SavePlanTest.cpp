#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "edit/SavePlan.h"

namespace glossmill {
namespace {

/// Texts that are the code of their language, in two pieces.
class CodeTexts : public LanguageTexts {
 public:
  void start(LanguageCode language) override { m_pieces = {"", "\n", language.text()}; }
  std::string_view nextPiece() override {
    m_piece = m_pieces.back();
    if (m_pieces.size() > 1) m_pieces.pop_back();
    return m_piece;
  }
  std::size_t entryCount(LanguageCode language) const override { return language.text().size(); }

 private:
  std::vector<std::string> m_pieces;
  std::string m_piece;
};

std::shared_ptr<Language> language(const std::string& code, const std::string& path, std::int64_t depth) {
  auto made = std::make_shared<Language>();
  made->setIso639(code);
  made->setLocalizedStringUrl(FileUrl(path));
  made->setUrlDepth(depth);
  return made;
}

std::string wholeOf(const BytePieces& pieces) {
  std::string whole;
  while (true) {
    const Result<std::string_view> piece = pieces();
    if (!piece) return piece.error().sentence;
    if (piece.value().empty()) return whole;
    whole += piece.value();
  }
}

TEST(SavePlan, HasOneTextALanguageInTheirOrder) {
  const auto texts = std::make_shared<CodeTexts>();
  const auto plan = planSave(texts, {language("de", "/x/de.lproj/Localizable.strings", Language::kStringsFile),
                                     language("pt-BR", "/x/pt-BR.lproj/Localizable.strings", Language::kStringsFile)});
  ASSERT_EQ(plan.size(), 2U);
  EXPECT_EQ(plan[0].language, "de");
  EXPECT_EQ(wholeOf(plan[0].bytes()), "de\n");
  EXPECT_EQ(wholeOf(plan[1].bytes()), "pt-BR\n");
  EXPECT_EQ(plan[1].entriesAfter, 5U);
}

TEST(SavePlan, MakesATextAnewEachTime) {
  const auto texts = std::make_shared<CodeTexts>();
  const auto plan = planSave(texts, {language("de", "/x/de.lproj/Localizable.strings", Language::kStringsFile)});
  EXPECT_EQ(wholeOf(plan[0].bytes()), "de\n");
  EXPECT_EQ(wholeOf(plan[0].bytes()), "de\n");
}

TEST(SavePlan, GivesALanguageThatHasOnlyItsDirectoryAFile) {
  const auto texts = std::make_shared<CodeTexts>();
  const auto french = language("fr", "/x/fr.lproj", 3);
  EXPECT_EQ(planSave(texts, {french})[0].file.path(), "/x/fr.lproj/Localizable.strings");
  EXPECT_EQ(french->urlDepth(), Language::kStringsFile);
  EXPECT_EQ(french->localizedStringUrl().path(), "/x/fr.lproj/Localizable.strings");
}

TEST(SavePlan, EndsInAnErrorWhereUtf8CannotHoldTheText) {
  const auto texts = std::make_shared<CodeTexts>();
  const auto plan = planSave(texts, {language("\xED\xA0\xBD", "/x/a", Language::kStringsFile)});
  EXPECT_EQ(wholeOf(plan[0].bytes()), "The text cannot be written as UTF-8.");
}

}  // namespace
}  // namespace glossmill
