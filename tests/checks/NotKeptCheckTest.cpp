#include <random>

#include "checks/FindingKinds.h"
#include "checks/NotKeptCheck.h"
#include "model/KeyReader.h"
#include "strings/StringsFileParser.h"
#include "strings/StringsFileWriter.h"

namespace glossmill {
namespace {

using enum FindingKind;
using Kinds = std::vector<FindingKind>;

std::shared_ptr<LocalizeString> recordOf(std::string_view key, std::string_view comment, std::string_view text) {
  auto record = std::make_shared<LocalizeString>();
  record->setName(key);
  record->setCommentArray({std::string(comment)});
  LanguagesDict texts;
  texts.set(LanguageCode("de"), text);
  record->setLanguagesDict(std::move(texts));
  return record;
}

Kinds found(std::string_view key, std::string_view translation, std::string_view comment = "Menu") {
  return kindsOf(notKeptFindings(*recordOf(key, comment, translation), translation));
}

TEST(NotKeptCheck, AcceptsTextsThatAreReadBack) {
  for (const std::string_view text : {"Öffnen", "a // b", "/* a */", "50 %", "a\\nb", "'a'", "a\tb", ""}) {
    EXPECT_EQ(found("Open", text), Kinds()) << text;
  }
}

TEST(NotKeptCheck, FindsTextsThatAreReadAsSomethingElse) {
  for (const std::string_view text : {"Sag \"ja\"", "a\nb", "\"", "a\\", "a\\\" b"}) {
    EXPECT_EQ(found("Open", text), Kinds{TextNotKept}) << text;
  }
}

TEST(NotKeptCheck, FindsKeysAndCommentsThatAreNotReadBack) {
  EXPECT_EQ(found("Say \"yes\"", "Ja"), Kinds{KeyNotKept});
  EXPECT_EQ(found("a\nb", "Ja"), Kinds{KeyNotKept});
  EXPECT_EQ(found("Open", "Ja", "ends */ \"early"), Kinds{KeyNotKept});
  EXPECT_EQ(found("Open", "Ja", "* a star"), Kinds());
}

/// What a whole file gives back for two records: the slow way to the same answer.
bool fileKeepsBoth(const StringArray& records) {
  KeyIndex index;
  for (const auto& record : records) index.add(record->name());
  KeyReader keys(index);
  TextArena values;
  const CancelFlag canceled;
  StringsFileParser parser(keys, values, canceled);
  const std::string text = stringsFileText(records, LanguageCode("de"));
  parser.feed(text);
  const StringsFileContent content = parser.finish();
  if (content.entries.size() != records.size()) return false;
  for (std::size_t at = 0; at < records.size(); ++at) {
    if (content.entries[at].key != at) return false;
    if (content.entries[at].value.view() != records[at]->languagesDict().find(LanguageCode("de"))) return false;
  }
  return true;
}

TEST(NotKeptCheck, SaysNothingOnlyWhereAFileKeepsTheEntryAndTheNext) {
  std::mt19937 random(7);
  const auto piece = [&random] {
    constexpr std::string_view kPieces[] = {"a",  "\"", "\\", "/", "*", "\n", "\r",
                                            "//", "/*", "*/", "%", "ä", "=",  ";"};
    std::string text;
    for (unsigned length = random() % 4; length > 0; --length) text += kPieces[random() % std::size(kPieces)];
    return text;
  };
  for (int round = 0; round < 20000; ++round) {
    const auto record = recordOf("k" + piece(), piece(), piece());
    const std::string translation(*record->languagesDict().find(LanguageCode("de")));
    const bool isKept = fileKeepsBoth({record, recordOf("next", "\"", "x")});
    EXPECT_EQ(notKeptFindings(*record, translation).empty(), isKept)
        << record->comment() << '|' << record->name() << '|' << translation;
  }
}

}  // namespace
}  // namespace glossmill
