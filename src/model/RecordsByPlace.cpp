#include "model/RecordsByPlace.h"

namespace glossmill {

namespace {

std::string placeText(std::string_view table, std::string_view key) {
  std::string text(table);
  return text.append(1, '\0').append(key);
}

}  // namespace

std::string_view tableIdOf(const LocalizeString& record) {
  return record.tableRow() ? std::string_view(record.tableRow()->table->id) : std::string_view();
}

void RecordsByPlace::add(const StringArray& records) {
  m_records.reserve(m_records.size() + records.size());
  for (const std::shared_ptr<LocalizeString>& record : records) {
    m_records.try_emplace(placeText(tableIdOf(*record), record->name()), record);
  }
}

std::shared_ptr<LocalizeString> RecordsByPlace::find(std::string_view table, std::string_view key) const {
  const auto found = m_records.find(placeText(table, key));
  return found == m_records.end() ? nullptr : found->second;
}

}  // namespace glossmill
