#include <gtest/gtest.h>

#include "exchange/ImportLanguageChoice.h"

namespace glossmill {
namespace {

LanguageArray languagesOf(const std::vector<std::string>& codes) {
  LanguageArray languages;
  for (const std::string& code : codes) {
    languages.push_back(std::make_shared<Language>());
    languages.back()->setIso639(code);
  }
  return languages;
}

/// The codes that a file's languages go to, "-" for none, or the error.
std::string chosen(const std::vector<std::string>& ofFile, const std::vector<std::string>& ofProject,
                   std::string_view asked = "") {
  Language language;
  language.setIso639(asked);
  const auto choice = importLanguages(ofFile, languagesOf(ofProject), asked.empty() ? nullptr : &language);
  if (!choice) return choice.error().sentence;
  std::string codes;
  for (const auto& code : choice.value().languages) codes += (code ? code->text() : "-") + " ";
  for (const ImportNote& note : choice.value().notes) codes += "(" + note.language + ") ";
  return codes;
}

TEST(ImportLanguageChoice, FollowsTheFileWhenNobodyAsks) {
  EXPECT_EQ(chosen({"fr", "de"}, {"de", "fr"}), "fr de ");
  EXPECT_EQ(chosen({"pt-br"}, {"pt", "pt_BR"}), "pt_BR ");
  EXPECT_EQ(chosen({"pt-BR"}, {"pt_BR", "pt-BR"}), "pt-BR ");
  EXPECT_EQ(chosen({"fr", "sv"}, {"fr"}), "fr - (sv) ");
}

TEST(ImportLanguageChoice, SaysWhenTheFileLeavesItOpen) {
  EXPECT_EQ(chosen({""}, {"de"}), "The file does not say its language.");
  EXPECT_EQ(chosen({"sv"}, {"de"}), "The project has no language sv.");
  EXPECT_EQ(chosen({}, {"de"}), "The file has no language.");
}

TEST(ImportLanguageChoice, TakesTheLanguageThatIsAskedFor) {
  EXPECT_EQ(chosen({"fr", "de"}, {"de", "fr"}, "de"), "- de ");
  EXPECT_EQ(chosen({""}, {"de"}, "de"), "de ");
  EXPECT_EQ(chosen({"PT_br", "pt-BR"}, {"pt-BR"}, "pt-BR"), "- pt-BR ");
}

TEST(ImportLanguageChoice, NotesAFileOfAnotherLanguageAndTakesItAllTheSame) {
  EXPECT_EQ(chosen({"fr"}, {"de"}, "de"), "de (fr) ");
  EXPECT_EQ(chosen({"fr", "sv"}, {"de"}, "de"), "The file has the languages fr, sv, and not de.");
}

}  // namespace
}  // namespace glossmill
