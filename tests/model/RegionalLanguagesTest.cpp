#include <gtest/gtest.h>

#include "model/LanguageTag.h"
#include "model/RegionalLanguages.h"

namespace glossmill {
namespace {

TEST(RegionalLanguages, AreKnownByTheirCodes) {
  EXPECT_EQ(nameOfRegionalLanguage("zh-Hans"), "Chinese, Simplified");
  EXPECT_EQ(nameOfRegionalLanguage("pt-BR"), "Portuguese (Brazil)");
  EXPECT_EQ(nameOfRegionalLanguage("es-419"), "Spanish (Latin America)");
  EXPECT_EQ(nameOfRegionalLanguage("de"), "");
  EXPECT_EQ(nameOfRegionalLanguage("zz-ZZ"), "");
  EXPECT_EQ(nameOfRegionalLanguage(""), "");
}

TEST(RegionalLanguages, StandOnceEachInTheOrderOfTheirCodesInTheUsualSpelling) {
  std::string_view last;
  for (const RegionalLanguage& language : regionalLanguages()) {
    EXPECT_LT(last, language.code);
    last = language.code;
    const Result<std::string> tag = languageTagOf(language.code);
    ASSERT_TRUE(tag.ok()) << language.code;
    EXPECT_EQ(tag.value(), language.code);
    EXPECT_EQ(nameOfRegionalLanguage(language.code), language.name);
  }
}

}  // namespace
}  // namespace glossmill
