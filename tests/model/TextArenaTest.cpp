#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/TextArena.h"

namespace glossmill {
namespace {

TEST(StoredText, IsNoTextAtFirst) {
  EXPECT_FALSE(StoredText());
}

TEST(TextArena, KeepsATextOfItsOwn) {
  TextArena arena;
  std::string text = "Öffnen";
  const StoredText stored = arena.add(text);
  text.assign("overwritten");
  EXPECT_EQ(stored.view(), "Öffnen");
}

TEST(TextArena, TellsTheEmptyTextFromNone) {
  TextArena arena;
  const StoredText stored = arena.add("");
  EXPECT_TRUE(stored);
  EXPECT_EQ(stored.view(), "");
}

TEST(TextArena, KeepsZeroCharacters) {
  TextArena arena;
  const std::string text("a\0b", 3);
  EXPECT_EQ(arena.add(text).view(), text);
}

TEST(TextArena, KeepsTextsOfEverySizeWhereTheyAre) {
  TextArena arena;
  std::vector<StoredText> stored;
  std::vector<std::string> texts;
  for (std::size_t length = 0; length < 3000; length += length < 300 ? 1 : 7)
    texts.emplace_back(length, static_cast<char>('a' + length % 26));
  for (const std::string& text : texts) stored.push_back(arena.add(text));
  for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(stored[i].view(), texts[i]);
}

TEST(TextArena, KeepsATextLargerThanItsLargestBlock) {
  TextArena arena;
  const StoredText before = arena.add("before");
  const std::string large(3 << 20, 'x');
  const StoredText stored = arena.add(large);
  const StoredText after = arena.add("after");
  EXPECT_EQ(before.view(), "before");
  EXPECT_TRUE(stored.view() == large);
  EXPECT_EQ(after.view(), "after");
}

TEST(TextArena, TakesATextThatLiesInItself) {
  TextArena arena;
  StoredText stored = arena.add(std::string(50, 'x'));
  for (int i = 0; i < 10; ++i) stored = arena.add(stored.view());
  EXPECT_EQ(stored.view(), std::string(50, 'x'));
}

}  // namespace
}  // namespace glossmill
