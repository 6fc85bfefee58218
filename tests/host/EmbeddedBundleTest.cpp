#include <gtest/gtest.h>

#include "host/EmbeddedBundle.h"
#include "model/IsoTable.h"

namespace glossmill {
namespace {

TEST(EmbeddedBundle, GivesTheKeyItselfWithoutATranslation) {
  const EmbeddedBundle bundle;
  EXPECT_EQ(bundle.localizedString("Clear Menu"), "Clear Menu");
  EXPECT_EQ(bundle.localizedString(""), "");
}

TEST(EmbeddedBundle, GivesTheTranslationOfItsTable) {
  const EmbeddedBundle bundle({{"Save", "Sichern"}, {"Nothing", ""}});
  EXPECT_EQ(bundle.localizedString("Save"), "Sichern");
  EXPECT_EQ(bundle.localizedString("Nothing"), "");
  EXPECT_EQ(bundle.localizedString("save"), "save");
}

TEST(EmbeddedBundle, HoldsTheIsoTable) {
  const auto bytes = EmbeddedBundle().resource("ISO-639-2", "csv");
  ASSERT_TRUE(bytes.ok());
  const auto table = IsoTable::fromCsv(bytes.value());
  ASSERT_TRUE(table.ok());
  EXPECT_EQ(table.value().nameOf("de"), "German");
  EXPECT_EQ(table.value().nameOf("zul"), "Zulu");
}

TEST(EmbeddedBundle, NamesAResourceThatItDoesNotHave) {
  const auto bytes = EmbeddedBundle().resource("ISO-639-3", "csv");
  ASSERT_FALSE(bytes.ok());
  EXPECT_EQ(bytes.error().sentence, "The program has no resource \"ISO-639-3.csv\".");
}

}  // namespace
}  // namespace glossmill
