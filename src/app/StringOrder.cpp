#include "app/StringOrder.h"

#include <algorithm>
#include <utility>

#include "model/RecordsByPlace.h"
#include "text/FoldCase.h"

namespace glossmill {

namespace {

using Rows = std::vector<std::size_t>;

/// Each record is asked once, however often it is compared.
template <typename Value, typename ValueOf>
void sortRows(const StringArray& records, Rows& rows, const ValueOf& valueOf, bool descending) {
  std::vector<std::pair<Value, std::size_t>> sorted;
  sorted.reserve(rows.size());
  for (const std::size_t row : rows) sorted.emplace_back(valueOf(*records[row]), row);
  std::stable_sort(sorted.begin(), sorted.end(), [descending](const auto& one, const auto& other) {
    return descending ? other.first < one.first : one.first < other.first;
  });
  std::transform(sorted.begin(), sorted.end(), rows.begin(), [](const auto& pair) { return pair.second; });
}

}  // namespace

void StringOrder::sortBy(SortKey key, bool descending) {
  m_project.stringController().setSorter(sorter(key, descending));
}

void StringOrder::clear() {
  m_project.stringController().setSorter(nullptr);
}

StringOrder::Sorter StringOrder::byText(std::function<std::string(const LocalizeString&)> text, bool descending) const {
  return [text = std::move(text), descending](const StringArray& records, Rows& rows) {
    const auto folded = [&text](const LocalizeString& record) { return foldCase(text(record)); };
    sortRows<std::string>(records, rows, folded, descending);
  };
}

StringOrder::Sorter StringOrder::byNumber(std::function<std::int64_t(const LocalizeString&)> number,
                                          bool descending) const {
  return [number = std::move(number), descending](const StringArray& records, Rows& rows) {
    sortRows<std::int64_t>(records, rows, number, descending);
  };
}

StringOrder::Sorter StringOrder::sorter(SortKey key, bool descending) const {
  using Record = LocalizeString;
  switch (key) {
    case SortKey::Key:
      break;
    case SortKey::Translation:
      return byText([this](const Record& record) { return translationOf(record); }, descending);
    case SortKey::Comment:
      return byText([](const Record& record) { return record.comment(); }, descending);
    case SortKey::Files:
      return byText([](const Record& record) { return record.sourceList(); }, descending);
    case SortKey::Uses:
      return byNumber([](const Record& record) { return record.useCount(); }, descending);
    case SortKey::Status:
      return byNumber([this](const Record& record) { return missingOf(record); }, descending);
    case SortKey::Table:
      return byText([](const Record& record) { return std::string(tableIdOf(record)); }, descending);
    case SortKey::Source:
      return byText([this](const Record& record) { return std::string(m_reference.of(record)); }, descending);
  }
  return byText([](const Record& record) { return record.name(); }, descending);
}

std::string StringOrder::translationOf(const LocalizeString& record) const {
  const auto language = m_project.selectedLanguage();
  return language ? std::string(record.languagesDict().find(language->code()).value_or("")) : std::string();
}

/// What the chosen language lacks comes behind what only others lack.
std::int64_t StringOrder::missingOf(const LocalizeString& record) const {
  const LanguageArray& languages = *m_project.languagesList();
  const auto selected = m_project.selectedLanguage();
  std::int64_t missing = 0;
  for (const auto& language : languages) missing += record.isMissing(language->code()) ? 1 : 0;
  const bool isMissingHere = selected && record.isMissing(selected->code());
  return missing + (isMissingHere ? static_cast<std::int64_t>(languages.size()) : 0);
}

}  // namespace glossmill
