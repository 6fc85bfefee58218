#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "model/LanguageCode.h"

namespace glossmill {
namespace {

TEST(LanguageCode, IsTheEmptyTextAtFirst) {
  EXPECT_EQ(LanguageCode().text(), "");
  EXPECT_EQ(LanguageCode(), LanguageCode(""));
}

TEST(LanguageCode, KeepsItsText) {
  EXPECT_EQ(LanguageCode("pt-BR").text(), "pt-BR");
}

TEST(LanguageCode, EqualsAnotherWithTheSameText) {
  EXPECT_EQ(LanguageCode("de"), LanguageCode(std::string("d") + "e"));
  EXPECT_EQ(LanguageCode("de").number(), LanguageCode("de").number());
}

TEST(LanguageCode, TellsCasesApart) {
  EXPECT_FALSE(LanguageCode("zh-Hans") == LanguageCode("zh-hans"));
}

TEST(LanguageCode, IsFoundAgainByItsNumber) {
  const LanguageCode code("gd");
  EXPECT_EQ(LanguageCode::fromNumber(code.number()), code);
  EXPECT_EQ(LanguageCode::fromNumber(code.number()).text(), "gd");
}

TEST(LanguageCode, KeepsTextsWhereTheyAreWhileOthersAreMade) {
  const std::string& text = LanguageCode("first of many").text();
  const char* place = text.data();
  for (int i = 0; i < 1000; ++i)
    EXPECT_EQ(LanguageCode("code " + std::to_string(i)).text(), "code " + std::to_string(i));
  EXPECT_EQ(LanguageCode("first of many").text().data(), place);
}

TEST(LanguageCode, GivesEveryThreadTheSameNumbers) {
  constexpr std::size_t kCodes = 200;
  std::vector<std::vector<std::uint32_t>> numbers(4);
  std::vector<std::thread> threads;
  for (std::vector<std::uint32_t>& own : numbers) {
    threads.emplace_back([&own] {
      for (std::size_t i = 0; i < kCodes; ++i) own.push_back(LanguageCode("thread " + std::to_string(i)).number());
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::vector<std::uint32_t>& own : numbers) {
    EXPECT_EQ(own, numbers.front());
    for (std::size_t i = 0; i < kCodes; ++i) {
      EXPECT_EQ(LanguageCode::fromNumber(own[i]).text(), "thread " + std::to_string(i));
    }
  }
}

}  // namespace
}  // namespace glossmill
