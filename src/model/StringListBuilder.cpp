#include "model/StringListBuilder.h"

#include <algorithm>

namespace glossmill {

namespace {
constexpr std::size_t kManyComments = 32;
}

void StringListBuilder::add(const std::vector<SourceString>& strings, const FileUrl& file) {
  const std::vector<std::uint32_t> hashes = hashesOf(strings);
  for (std::size_t i = 0; i < strings.size(); ++i) {
    const auto [number, isNew] = m_keys.add(strings[i].name, hashes[i]);
    if (isNew) {
      append(strings[i], file);
    } else {
      merge(number, strings[i].comment);
    }
  }
}

/// The places of all the names are asked for at once, since each lies somewhere else in memory.
std::vector<std::uint32_t> StringListBuilder::hashesOf(const std::vector<SourceString>& strings) const {
  std::vector<std::uint32_t> hashes;
  hashes.reserve(strings.size());
  for (const SourceString& string : strings) {
    hashes.push_back(KeyIndex::hashOf(string.name));
    m_keys.prefetch(hashes.back());
  }
  return hashes;
}

void StringListBuilder::append(const SourceString& string, const FileUrl& file) {
  auto record = std::make_shared<LocalizeString>(m_arena);
  record->setName(string.name);
  record->commentArray().emplace_back(string.comment);
  record->filesArray().push_back(file);
  m_records.push_back(std::move(record));
}

void StringListBuilder::merge(KeyIndex::Number number, std::string_view comment) {
  LocalizeString& record = *m_records[number];
  record.setUseCount(record.useCount() + 1);
  if (!hasComment(number, comment)) record.commentArray().emplace_back(comment);
}

bool StringListBuilder::hasComment(KeyIndex::Number number, std::string_view comment) {
  const std::vector<std::string>& comments = m_records[number]->commentArray();
  if (comments.size() < kManyComments) return std::find(comments.begin(), comments.end(), comment) != comments.end();
  KeyIndex& known = m_manyComments[number];
  if (known.size() == 0) {
    for (const std::string& earlier : comments) known.add(earlier);
  }
  return !known.add(comment).second;
}

}  // namespace glossmill
