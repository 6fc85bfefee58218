#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

#include "model/KeyIndex.h"
#include "model/KeyReader.h"

namespace glossmill {
namespace {

using Number = KeyIndex::Number;

KeyIndex indexOf(const std::vector<std::string>& keys) {
  KeyIndex index;
  for (const std::string& key : keys) index.add(key);
  return index;
}

TEST(KeyIndex, FindsNothingWhileItIsEmpty) {
  const KeyIndex index;
  EXPECT_EQ(index.size(), 0U);
  EXPECT_EQ(index.find(""), std::nullopt);
  EXPECT_EQ(index.find("Open"), std::nullopt);
}

TEST(KeyIndex, NumbersKeysInTheOrderInWhichTheyCome) {
  KeyIndex index;
  EXPECT_EQ(index.add("Open"), std::pair(Number{0}, true));
  EXPECT_EQ(index.add("Close"), std::pair(Number{1}, true));
  EXPECT_EQ(index.add("Open"), std::pair(Number{0}, false));
  EXPECT_EQ(index.add(""), std::pair(Number{2}, true));
  EXPECT_EQ(index.size(), 3U);
}

TEST(KeyIndex, TellsKeysApartThatDifferOnlyInCaseOrByABlank) {
  const KeyIndex index = indexOf({"Open", "open", "Open "});
  EXPECT_EQ(index.find("Open"), Number{0});
  EXPECT_EQ(index.find("open"), Number{1});
  EXPECT_EQ(index.find("Open "), Number{2});
  EXPECT_EQ(index.find("OPEN"), std::nullopt);
}

TEST(KeyIndex, TellsKeysApartBehindAZeroByte) {
  const std::string one("a\0b", 3);
  const std::string other("a\0c", 3);
  const KeyIndex index = indexOf({one, other});
  EXPECT_EQ(index.find(one), Number{0});
  EXPECT_EQ(index.find(other), Number{1});
  EXPECT_EQ(index.find("a"), std::nullopt);
}

TEST(KeyIndex, KeepsKeysWhoseTextIsGone) {
  KeyIndex index;
  {
    std::string text = "Open";
    index.add(text);
    text = "Shut";
  }
  EXPECT_EQ(index.find("Open"), Number{0});
  EXPECT_EQ(index.find("Shut"), std::nullopt);
}

TEST(KeyIndex, FindsEachOfManyKeys) {
  constexpr Number kMany = 20000;
  KeyIndex index;
  for (Number number = 0; number < kMany; ++number) {
    ASSERT_EQ(index.add("key " + std::to_string(number)), std::pair(number, true));
  }
  for (Number number = 0; number < kMany; ++number) ASSERT_EQ(index.find("key " + std::to_string(number)), number);
  EXPECT_EQ(index.find("key 20000"), std::nullopt);
}

TEST(KeyIndex, TakesAHashThatWasAskedForBefore) {
  KeyIndex index;
  const std::uint32_t hash = KeyIndex::hashOf("a");
  index.prefetch(hash);
  EXPECT_EQ(index.add("a", hash), (std::pair<Number, bool>(0, true)));
  index.prefetch(hash);
  EXPECT_EQ(index.add("a", hash), (std::pair<Number, bool>(0, false)));
  EXPECT_EQ(index.find("a"), Number{0});
}

TEST(KeyReader, FindsNothingInAnEmptyIndex) {
  const KeyIndex index;
  KeyReader reader(index);
  EXPECT_EQ(reader.find("Open"), std::nullopt);
  reader.restart();
  EXPECT_EQ(reader.find(""), std::nullopt);
}

TEST(KeyReader, FindsKeysInEachFileWhateverTheirOrder) {
  const KeyIndex index = indexOf({"a", "b", "c"});
  KeyReader reader(index);
  for (const std::string_view file : {"abc", "abc", "cba", "aabb", "abc"}) {
    reader.restart();
    for (const char key : file) {
      EXPECT_EQ(reader.find(std::string_view(&key, 1)), static_cast<Number>(key - 'a')) << file;
    }
  }
}

TEST(KeyReader, IsNotMisledByUnknownKeys) {
  const KeyIndex index = indexOf({"a", "b"});
  KeyReader reader(index);
  EXPECT_EQ(reader.find("x"), std::nullopt);
  EXPECT_EQ(reader.find("a"), Number{0});
  EXPECT_EQ(reader.find("x"), std::nullopt);
  EXPECT_EQ(reader.find("b"), Number{1});
  reader.restart();
  EXPECT_EQ(reader.find("a"), Number{0});
  EXPECT_EQ(reader.find("b"), Number{1});
}

TEST(KeyReader, ExpectsTheKeyThatStoodNextInAnEarlierFile) {
  const KeyIndex index = indexOf({"a", "b"});
  KeyReader reader(index);
  EXPECT_EQ(reader.expectedKey(), std::nullopt);
  reader.find("b");
  reader.find("a");
  EXPECT_EQ(reader.expectedKey(), std::nullopt);
  reader.restart();
  EXPECT_EQ(reader.expectedKey(), "b");
  EXPECT_EQ(reader.takeExpected(), Number{1});
  EXPECT_EQ(reader.expectedKey(), "a");
}

TEST(KeyReader, AgreesWithTheIndexOnRandomKeys) {
  std::vector<std::string> keys;
  for (int number = 0; number < 50; ++number) keys.push_back("k" + std::to_string(number));
  const KeyIndex index = indexOf(keys);
  KeyReader reader(index);
  std::mt19937 random(5);
  for (int question = 0; question < 20000; ++question) {
    if (random() % 20 == 0) reader.restart();
    const std::string key = "k" + std::to_string(random() % 60);
    ASSERT_EQ(reader.find(key), index.find(key)) << key;
  }
}

}  // namespace
}  // namespace glossmill
