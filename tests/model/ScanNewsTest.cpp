#include <gtest/gtest.h>

#include <string>

#include "model/Language.h"
#include "model/Problem.h"
#include "model/ScanNews.h"

namespace glossmill {
namespace {

const FileUrl kNewsSource("/P/a.m");
const FileUrl kNewsStrings("/P/de.lproj/Localizable.strings");

TEST(ScanNews, SaysNothingOfWhatGoesWell) {
  const Language language;
  ScanNews news;
  news.add(PackageFound{kNewsSource});
  news.add(StringsFileFound{language, kNewsStrings});
  news.add(SourceBegins{kNewsSource});
  news.add(StringsFileRead{kNewsStrings, 3});
  EXPECT_TRUE(news.items().empty());
}

TEST(ScanNews, CountsAllAndKeepsTheFirstThree) {
  ScanNews news;
  for (int at = 0; at < 5; ++at) news.add(EntryWithoutMatch{kNewsStrings, "key " + std::to_string(at), at});
  ASSERT_EQ(news.items().size(), 1U);
  const ScanNewsItem& item = news.items().front();
  EXPECT_EQ(item.kind, ScanNewsKind::EntryWithoutMatch);
  EXPECT_EQ(item.count, 5U);
  ASSERT_EQ(item.examples.size(), 3U);
  EXPECT_EQ(item.examples[2], (ScanExample{kNewsStrings, 0, 0, "key 2"}));
}

TEST(ScanNews, KeepsTheOrderOfTheKindsWhateverComesFirst) {
  ScanNews news;
  news.add(EntryRejected{kNewsStrings, "x", 1});
  news.add(CallRejected{kNewsSource, "NSLocalizedString(x)", CallRejection::NoKey});
  news.add(NoPackageFound{});
  ASSERT_EQ(news.items().size(), 3U);
  EXPECT_EQ(news.items()[0].kind, ScanNewsKind::NoPackage);
  EXPECT_EQ(news.items()[1].kind, ScanNewsKind::CallRejected);
  EXPECT_EQ(news.items()[2].kind, ScanNewsKind::EntryRejected);
}

TEST(ScanNews, CountsEachKindOfProblemForItself) {
  const Problem twice{kNewsStrings, 4, 0, "repeated-key", "Twice."};
  const Problem broken{kNewsStrings, 7, 2, "strings-syntax", "Broken."};
  ScanNews news;
  news.add(ProblemFound{twice});
  news.add(ProblemFound{broken});
  news.add(ProblemFound{twice});
  ASSERT_EQ(news.items().size(), 2U);
  EXPECT_EQ(news.items()[0].problem, "repeated-key");
  EXPECT_EQ(news.items()[0].count, 2U);
  EXPECT_EQ(news.items()[1].examples, (std::vector<ScanExample>{{kNewsStrings, 7, 2, "Broken."}}));
}

TEST(ScanNews, NamesALanguageByItsCodeAlsoWhereItHasNoName) {
  Language language;
  language.setIso639("pt-BR");
  ScanNews news;
  news.add(StringsFileMissing{language});
  news.add(OldLanguageName{"German", "de"});
  ASSERT_EQ(news.items().size(), 2U);
  EXPECT_EQ(news.items()[0].examples.front().text, "German.lproj is de");
  EXPECT_EQ(news.items()[1].examples.front().text, "pt-BR");
}

TEST(ScanNews, ClipsWhatMayBeVeryLong) {
  ScanNews news;
  news.add(EntryRejected{kNewsStrings, std::string(5000, 'x'), 1});
  EXPECT_EQ(news.items().front().examples.front().text, std::string(80, 'x'));
}

}  // namespace
}  // namespace glossmill
