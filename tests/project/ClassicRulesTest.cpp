#include <gtest/gtest.h>

#include <string>

#include "project/ClassicRules.h"

namespace glossmill {
namespace {

using Text = std::optional<std::string>;

bool marks(EditKind kind, const Text& before, const Text& after) {
  return ClassicRules().marksChanged(kind, {nullptr, LanguageCode("de"), before, after});
}

TEST(ClassicRulesForEdits, MarkTheProjectWhenTypingAddsOrRemovesAnEntry) {
  EXPECT_TRUE(marks(EditKind::Typing, std::nullopt, "Auf"));
  EXPECT_TRUE(marks(EditKind::Typing, "Auf", std::nullopt));
  EXPECT_TRUE(marks(EditKind::Typing, "", std::nullopt));
}

TEST(ClassicRulesForEdits, DoNotMarkItWhenOneTextReplacesAnother) {
  EXPECT_FALSE(marks(EditKind::Typing, "Auf", "Öffnen"));
  EXPECT_FALSE(marks(EditKind::Typing, "", "Öffnen"));
}

TEST(ClassicRulesForEdits, MarkItForAnEntryThatWasFilled) {
  EXPECT_TRUE(marks(EditKind::Fill, std::nullopt, "Open"));
}

TEST(ClassicRulesForEdits, NeverMarkItForAnImport) {
  EXPECT_FALSE(marks(EditKind::Import, std::nullopt, "Auf"));
  EXPECT_FALSE(marks(EditKind::Import, "Auf", "Öffnen"));
}

}  // namespace
}  // namespace glossmill
