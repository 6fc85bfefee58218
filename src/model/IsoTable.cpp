#include "model/IsoTable.h"

#include <algorithm>

#include "text/Split.h"

namespace glossmill {

Result<IsoTable> IsoTable::fromCsv(std::string_view bytes) {
  const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) == 0; });
  if (!ascii) return Error{"The table of languages holds characters that are not 7-bit ASCII."};
  IsoTable table;
  for (const std::string_view record : split(bytes, '\r')) table.addRecord(record);
  return table;
}

void IsoTable::addRecord(std::string_view record) {
  const std::vector<std::string_view> fields = split(record, ';');
  if (fields.size() < 3 || fields[2].empty()) return;
  const std::string name(fields[2]);
  if (fields[0].size() == 3) m_names.insert_or_assign(std::string(fields[0]), name);
  if (fields[1].size() == 2) m_names.insert_or_assign(std::string(fields[1]), name);
}

std::optional<std::string> IsoTable::nameOf(std::string_view code) const {
  const auto found = m_names.find(code);
  return found == m_names.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string> IsoTable::codesOf(std::string_view name) const {
  std::vector<std::string> codes;
  for (const auto& [code, itsName] : m_names) {
    if (itsName == name) codes.push_back(code);
  }
  std::stable_sort(codes.begin(), codes.end(),
                   [](const std::string& a, const std::string& b) { return a.size() > b.size(); });
  return codes;
}

}  // namespace glossmill
