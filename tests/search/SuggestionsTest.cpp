#include <gtest/gtest.h>

#include "search/Suggestions.h"
#include "support/LanguageCodes.h"
#include "support/TableRecord.h"

namespace glossmill {
namespace {

/// Records in one project, most of them translated into German.
class SuggestionsTest : public testing::Test {
 protected:
  std::shared_ptr<LocalizeString> add(std::string_view key, std::string_view german = {}) {
    auto record = std::make_shared<LocalizeString>();
    record->setName(key);
    say(*record, kGerman, german);
    records.push_back(record);
    return record;
  }
  static void say(LocalizeString& record, LanguageCode language, std::string_view text) {
    LanguagesDict dict = record.takeLanguagesDict();
    if (!text.empty()) dict.set(language, text);
    record.setLanguagesDict(std::move(dict));
  }
  std::vector<Suggestion> suggest(const LocalizeString& record, std::size_t most = 9) const {
    const CancelFlag never;
    return Suggestions::of(Suggestions::snapshot(records, kEnglish), never)
        ->suggest(record, record.name(), kGerman, most);
  }
  static std::vector<std::string> textsOf(const std::vector<Suggestion>& suggestions) {
    std::vector<std::string> texts;
    for (const Suggestion& suggestion : suggestions) texts.push_back(suggestion.translation);
    return texts;
  }
  using Texts = std::vector<std::string>;

  const LanguageCode kEnglish{"en"};
  StringArray records;
};

TEST_F(SuggestionsTest, BeginWithTheSameTextElsewhere) {
  add("Open the files", "Dateien öffnen");
  const auto wanted = add("Open the file");
  add("Open the file", "Datei öffnen");
  add("Quit", "Beenden");
  const std::vector<Suggestion> suggestions = suggest(*wanted);
  ASSERT_EQ(textsOf(suggestions), (Texts{"Datei öffnen", "Dateien öffnen"}));
  EXPECT_EQ(suggestions[0].likeness, 1);
  EXPECT_EQ(suggestions[0].record, records[2]);
  EXPECT_EQ(suggestions[1].source, "Open the files");
  EXPECT_LT(suggestions[1].likeness, 1);
}

TEST_F(SuggestionsTest, NameEachTranslationOnce) {
  const auto wanted = add("Open");
  add("Open", "Öffnen");
  add("Open", "Öffnen");
  add("Open", "Auf");
  add("OPEN", "Auf");
  EXPECT_EQ(textsOf(suggest(*wanted)), (Texts{"Öffnen", "Auf"}));
}

TEST_F(SuggestionsTest, LeaveOutWhatTheRecordSaysAlready) {
  const auto wanted = add("Open", "Auf");
  add("Open", "Auf");
  add("OPEN", "Öffnen");
  EXPECT_EQ(textsOf(suggest(*wanted)), (Texts{"Öffnen"}));
}

TEST_F(SuggestionsTest, AreNotMadeOfEmptyTranslationsOrOtherLanguages) {
  const auto wanted = add("Open");
  say(*add("Open"), kFrench, "Ouvrir");
  LanguagesDict empty;
  empty.set(kGerman, "");
  add("Open")->setLanguagesDict(std::move(empty));
  EXPECT_TRUE(suggest(*wanted).empty());
}

TEST_F(SuggestionsTest, AreNoMoreThanAreWanted) {
  const auto wanted = add("Open");
  add("Open", "Auf");
  add("Open", "Öffnen");
  add("Open", "Aufmachen");
  EXPECT_EQ(textsOf(suggest(*wanted, 2)), (Texts{"Auf", "Öffnen"}));
}

TEST_F(SuggestionsTest, GoByTheSourceTextAndNotByTheKey) {
  const auto wanted = add("MENU_OPEN");
  const auto other = add("TOOLBAR_OPEN", "Öffnen");
  say(*wanted, kEnglish, "Open File…");
  say(*other, kEnglish, "Open File…");
  const CancelFlag never;
  const auto suggestions = Suggestions::of(Suggestions::snapshot(records, kEnglish), never);
  EXPECT_EQ(textsOf(suggestions->suggest(*wanted, "Open File…", kGerman, 9)), (Texts{"Öffnen"}));
}

TEST_F(SuggestionsTest, CrossTables) {
  const auto wanted = tableRecord("Menu", "Open");
  const auto other = tableRecord("Panel", "Open");
  say(*other, kGerman, "Öffnen");
  records = {wanted, other};
  EXPECT_EQ(textsOf(suggest(*wanted)), (Texts{"Öffnen"}));
}

TEST_F(SuggestionsTest, SayWhatTheTranslationIsNow) {
  const auto wanted = add("Open");
  const auto other = add("Open", "Auf");
  const CancelFlag never;
  const auto suggestions = Suggestions::of(Suggestions::snapshot(records, kEnglish), never);
  say(*other, kGerman, "Öffnen");
  EXPECT_EQ(textsOf(suggestions->suggest(*wanted, "Open", kGerman, 9)), (Texts{"Öffnen"}));
}

TEST_F(SuggestionsTest, OtherLanguagesAreToldInTheirOrderWithoutThoseThatSayNothing) {
  const auto record = add("Open", "Öffnen");
  say(*record, kFrench, "Ouvrir");
  LanguageArray languages;
  for (const char* code : {"it", "fr", "de"}) {
    languages.push_back(std::make_shared<Language>());
    languages.back()->setIso639(code);
  }
  const std::vector<OtherTranslation> german = otherTranslations(*record, kGerman, languages);
  ASSERT_EQ(german.size(), 1U);
  EXPECT_EQ(german[0].language, languages[1]);
  EXPECT_EQ(german[0].text, "Ouvrir");
  EXPECT_EQ(otherTranslations(*record, LanguageCode("it"), languages).size(), 2U);
}

}  // namespace
}  // namespace glossmill
