#include "xcode/TableEntries.h"

#include <algorithm>
#include <optional>

#include "platform/ReadBytes.h"
#include "text/Utf16.h"
#include "xcode/SourceText.h"
#include "xcode/StringsDocument.h"

namespace glossmill {

namespace {

constexpr std::string_view kBinaryList = "bplist";
constexpr std::size_t kMostKeyUnits = 80;  // of a key, in a sentence

std::string_view withoutSpace(std::string_view text) {
  const auto isSpace = [](char byte) { return isBlank(byte) || isLineEnd(byte); };
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::string lineList(const std::vector<std::size_t>& lines) {
  std::string list;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    if (at > 0) list += at + 1 == lines.size() ? " and " : ", ";
    list += std::to_string(lines[at]);
  }
  return list;
}

class TableReader {
 public:
  TableReader(TableList::Table& table, TextArena& arena, const ScanInput& input,
              const std::function<ReadStringsFile()>& next, const std::function<void(Problem)>& report)
      : m_table(table), m_arena(arena), m_input(input), m_next(next), m_report(report) {}

  TableEntries read() {
    m_entries.columns.resize(m_table.files.size());
    for (const std::size_t file : readingOrder(*m_table.table)) {
      if (!m_input.canceled.isSet()) readFile(file);
    }
    return std::move(m_entries);
  }

 private:
  void readFile(std::size_t number) {
    StringsTable::File& file = m_table.table->files[number];
    m_input.listener.happened(StringsFileBegins{file.file});
    const ReadStringsFile read = m_next();
    if (read.unread) {
      file.hasMistake = true;
      m_input.listener.happened(StringsFileUnread{file.file, *read.unread});
      return reportFile(file, {0, 0}, "strings-unread", read.unread->sentence);
    }
    if (read.isBinary) {
      file.hasMistake = true;
      return reportFile(file, {0, 0}, "not-read", "A binary property list is not read");
    }
    const StringsDocument& document = *read.document;
    takeEntries(number, document);
    m_input.listener.happened(StringsFileRead{file.file, document.entries().size()});
    if (!document.error()) return;
    file.hasMistake = true;
    reportFile(file, document.error()->place, "strings-syntax", document.error()->sentence);
  }

  void takeEntries(std::size_t number, const StringsDocument& document) {
    std::vector<StoredText>& column = m_entries.columns[number];
    column.reserve(m_entries.keys.size());
    m_expected = 0;
    std::size_t end = 0;
    bool repeats = false;
    for (const StringsEntry& entry : document.entries()) {
      const KeyIndex::Number key = numberOf(document, entry);
      if (key >= column.size()) column.resize(key + 1);
      repeats = repeats || column[key];
      column[key] = valueOf(document, entry);
      if (document.body().syntax == StringsSyntax::Words) takeComment(key, document, end, entry.begin);
      end = entry.end;
    }
    if (repeats) reportRepetitions(m_table.table->files[number], document);
  }

  /// Files tend to hold the same keys in the same order, so the one that stood next in an earlier file is tried first.
  KeyIndex::Number numberOf(const StringsDocument& document, const StringsEntry& entry) {
    if (!entry.key.isPlain) return m_entries.keys.add(document.keyOf(entry)).first;
    const std::string_view key = document.spelled(entry.key);
    const bool isExpected = m_expected < m_entries.keys.size() && m_entries.keys.key(m_expected) == key;
    const KeyIndex::Number number = isExpected ? m_expected : m_entries.keys.add(key).first;
    m_expected = number + 1;
    return number;
  }

  StoredText valueOf(const StringsDocument& document, const StringsEntry& entry) {
    if (entry.value.isPlain) return m_arena.add(document.spelled(entry.value));
    return m_arena.add(document.valueOf(entry));
  }

  void takeComment(KeyIndex::Number key, const StringsDocument& document, std::size_t from, std::size_t to) {
    if (key < m_entries.comments.size() && m_entries.comments[key]) return;
    const std::string_view gap = std::string_view(document.text()).substr(from, to - from);
    const std::string_view comment = commentInGap(gap, from > 0);
    if (comment.empty()) return;
    if (key >= m_entries.comments.size()) m_entries.comments.resize(key + 1);
    m_entries.comments[key] = m_arena.add(comment);
  }

  void reportRepetitions(const StringsTable::File& file, const StringsDocument& document) {
    for (const StringsDocument::RepeatedKey& repeated : document.repeatedKeys()) {
      reportFile(file, {repeated.lines.back(), 0}, "repeated-key",
                 "The key \"" + clipUtf16(repeated.key, kMostKeyUnits) + "\" stands on the lines " +
                     lineList(repeated.lines) + "; the last one counts");
    }
  }

  void reportFile(const StringsTable::File& file, TextPlace place, std::string_view kind, std::string text) {
    m_report({file.file, static_cast<std::uint32_t>(place.line), static_cast<std::uint32_t>(place.column), kind,
              std::move(text)});
  }

  TableList::Table& m_table;
  TextArena& m_arena;
  const ScanInput& m_input;
  const std::function<ReadStringsFile()>& m_next;
  const std::function<void(Problem)>& m_report;
  TableEntries m_entries;
  KeyIndex::Number m_expected = 0;  ///< the key that stood next in an earlier file
};

}  // namespace

ReadStringsFile readStringsFile(const StringsTable::File& file, FileReading& files) {
  static thread_local FileBuffer buffer;
  const Result<std::string_view> bytes = buffer.read(files, file.file);
  ReadStringsFile read;
  if (!bytes) {
    read.unread = bytes.error();
    return read;
  }
  read.bytesRead = bytes.value().size();
  read.isBinary = bytes.value().starts_with(kBinaryList);
  if (read.isBinary) return read;
  read.document.emplace(bytes.value(), file.encoding ? encodingOfNumber(*file.encoding) : std::nullopt);
  return read;
}

std::vector<std::size_t> readingOrder(const StringsTable& table) {
  std::vector<std::size_t> order;
  for (std::size_t file = 0; file < table.files.size(); ++file) order.push_back(file);
  std::stable_partition(order.begin(), order.end(),
                        [&table](std::size_t file) { return table.files[file].language == table.development; });
  return order;
}

TableEntries takeTable(TableList::Table& table, TextArena& arena, const ScanInput& input,
                       const std::function<ReadStringsFile()>& next, const std::function<void(Problem)>& report) {
  return TableReader(table, arena, input, next, report).read();
}

std::string_view commentInGap(std::string_view gap, bool followsEntry) {
  if (gap.find('/') == std::string_view::npos) return {};
  std::string_view last;
  bool isOnEntryLine = followsEntry;
  for (std::size_t at = 0; at + 1 < gap.size(); ++at) {
    if (isLineEnd(gap[at])) isOnEntryLine = false;
    if (gap[at] != '/' || (gap[at + 1] != '*' && gap[at + 1] != '/')) continue;
    const bool isBlock = gap[at + 1] == '*';
    const std::size_t end = isBlock ? gap.find("*/", at + 2) : gap.find_first_of("\r\n", at + 2);
    const std::size_t length = std::min(end, gap.size()) - (at + 2);
    if (!isOnEntryLine) last = withoutSpace(gap.substr(at + 2, length));
    if (end == std::string_view::npos) break;
    at = isBlock ? end + 1 : end - 1;
  }
  return last;
}

}  // namespace glossmill
