#include "checks/NotKeptCheck.h"

#include <optional>
#include <string>

#include "model/KeyReader.h"
#include "strings/StringsFileParser.h"
#include "strings/StringsFileWriter.h"

namespace glossmill {

namespace {

constexpr std::string_view kPlainText = "x";
constexpr std::string_view kQuotingComment = "\"";  // harmless, unless the entry in front is not closed

std::shared_ptr<LocalizeString> entryOf(std::string_view key, std::vector<std::string> comments,
                                        std::string_view translation) {
  auto entry = std::make_shared<LocalizeString>();
  entry->setName(key);
  entry->setCommentArray(std::move(comments));
  LanguagesDict texts;
  texts.set(LanguageCode(), translation);
  entry->setLanguagesDict(std::move(texts));
  return entry;
}

/// What a file says of the key after the entry was written into it, in front of another entry. Nothing when it does not
/// hold the key, or lost the other entry.
std::optional<std::string> readBack(const LocalizeString& record, std::string_view translation) {
  const std::string otherKey = "the key behind " + record.name().substr(0, record.name().find_first_of("\"\\/*\r\n"));
  const std::string text = stringsFileText({entryOf(record.name(), record.commentArray(), translation),
                                            entryOf(otherKey, {std::string(kQuotingComment)}, kPlainText)},
                                           LanguageCode());
  KeyIndex index;
  const KeyIndex::Number key = index.add(record.name()).first;
  const KeyIndex::Number other = index.add(otherKey).first;
  KeyReader keys(index);
  TextArena values;
  const CancelFlag canceled;
  StringsFileParser parser(keys, values, canceled);
  parser.feed(text);
  const StringsFileContent content = parser.finish();
  const bool isWhole = content.entries.size() == 2 && content.entries[0].key == key &&
                       content.entries[1].key == other && content.entries[1].value.view() == kPlainText;
  return isWhole ? std::optional(std::string(content.entries[0].value.view())) : std::nullopt;
}

/// A glance that is enough for nearly all texts: the rest holds nothing that the syntax knows.
bool isPlainForFiles(std::string_view text) {
  return text.find_first_of("\"\\/*\r\n") == text.npos;
}

/// Comments stand in a block, which only a star can end.
bool hasPlainComments(const LocalizeString& record) {
  for (const std::string& comment : record.commentArray()) {
    if (comment.find('*') != comment.npos) return false;
  }
  return true;
}

Finding notKept(FindingKind kind, std::string_view translation, std::optional<std::string> readText) {
  return {Check::NotKept, Severity::Error, kind, std::move(readText).value_or(""), {}, {}, {0, translation.size()}};
}

}  // namespace

std::vector<Finding> notKeptFindings(const LocalizeString& record, std::string_view translation) {
  const bool isPlainHead = isPlainForFiles(record.name()) && hasPlainComments(record);
  if (isPlainHead && isPlainForFiles(translation)) return {};
  if (readBack(record, translation) == translation) return {};
  if (readBack(record, kPlainText) != kPlainText) return {notKept(FindingKind::KeyNotKept, {}, std::nullopt)};
  return {notKept(FindingKind::TextNotKept, translation, readBack(record, translation))};
}

}  // namespace glossmill
