#include <gtest/gtest.h>

#include "model/LanguageTag.h"

namespace glossmill {
namespace {

std::string tagOf(std::string_view typed) {
  const Result<std::string> tag = languageTagOf(typed);
  return tag ? tag.value() : "wrong: " + tag.error().sentence;
}

bool isWrong(std::string_view typed) {
  return !languageTagOf(typed).ok();
}

bool meansTheSame(std::string_view one, std::string other) {
  return sameLanguageAmong({std::move(other)}, one) == std::optional<std::size_t>(0);
}

TEST(LanguageTag, GetsItsUsualSpelling) {
  EXPECT_EQ(tagOf("DE"), "de");
  EXPECT_EQ(tagOf(" pt_br\n"), "pt-BR");
  EXPECT_EQ(tagOf("ZH-hANS"), "zh-Hans");
  EXPECT_EQ(tagOf("zh-hant-tw"), "zh-Hant-TW");
  EXPECT_EQ(tagOf("es-419"), "es-419");
  EXPECT_EQ(tagOf("YUE"), "yue");
  EXPECT_EQ(tagOf("ca-es-Valencia"), "ca-ES-valencia");
  EXPECT_EQ(tagOf("de-1996"), "de-1996");
  EXPECT_EQ(tagOf("en-X-Pirate"), "en-x-pirate");
}

TEST(LanguageTag, IsRefusedWhereItHasAnotherShape) {
  for (const char* typed : {"", "  ", "d", "German", "1a", "de-", "-de", "de--AT", "de-A", "de-Lat", "pt-BR-Latn",
                            "es-41", "de-x", "de/AT", "dé", "de AT", "de-AT-BR"}) {
    EXPECT_TRUE(isWrong(typed)) << typed;
  }
}

TEST(LanguageTag, IsRefusedInASentenceThatNamesWhatIsWrong) {
  EXPECT_EQ(tagOf(""), "wrong: There is no language code.");
  EXPECT_EQ(tagOf("German"), "wrong: A language code begins with two or three letters, such as de or pt-BR.");
  EXPECT_EQ(tagOf("de-Lat"),
            "wrong: In a language code \"Lat\" is neither a script, a region nor a variant at its place.");
}

TEST(LanguageTag, IsTheSameInAnySpelling) {
  EXPECT_TRUE(meansTheSame("pt-BR", "pt_br"));
  EXPECT_TRUE(meansTheSame("zh_hans", "zh-Hans"));
  EXPECT_FALSE(meansTheSame("pt", "pt-BR"));
  EXPECT_FALSE(meansTheSame("pt-PT", "pt-BR"));
}

TEST(LanguageTag, IsTheSameByANameOfFormerTimes) {
  EXPECT_TRUE(meansTheSame("en", "English"));
  EXPECT_TRUE(meansTheSame("German", "de"));
  EXPECT_FALSE(meansTheSame("fr", "German"));
  EXPECT_FALSE(meansTheSame("en", "Base"));
}

TEST(LanguageTag, IsTheSameByACodeThatWasReplaced) {
  EXPECT_TRUE(meansTheSame("he", "iw"));
  EXPECT_TRUE(meansTheSame("zh-Hans", "zh_CN"));
  EXPECT_TRUE(meansTheSame("zh-TW", "zh-Hant"));
  EXPECT_FALSE(meansTheSame("zh-Hans", "zh-Hant"));
}

TEST(LanguageTag, IsLookedForFromTheFront) {
  EXPECT_EQ(sameLanguageAmong({"fr", "English", "en"}, "EN"), 1U);
  EXPECT_EQ(sameLanguageAmong({}, "en"), std::nullopt);
}

}  // namespace
}  // namespace glossmill
