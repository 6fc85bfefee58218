#include "exchange/ImportPlan.h"

#include <algorithm>
#include <utility>

#include "exchange/ImportKey.h"
#include "exchange/TablePath.h"

namespace glossmill {

namespace {

constexpr std::string_view kClassicTable = "Localizable";

/// The table that the unit says it belongs to. Without tables in the project there is only one, wherever its files
/// lie.
std::string tableOf(const ExchangeUnit& unit, bool hasTables) {
  std::string table = unit.table.empty() && !unit.file.empty() ? tableOfPath(unit.file) : unit.table;
  const bool isOnly = !hasTables && table.substr(table.rfind('/') + 1) == kClassicTable;
  return isOnly ? std::string() : table;
}

bool isInScope(ImportItem::Kind kind, ImportScope scope) {
  if (scope == ImportScope::OnlyNew) return kind == ImportItem::Kind::New;
  return scope == ImportScope::All || kind == ImportItem::Kind::Changed;
}

ImportItem::Kind kindOf(const Edit& edit) {
  if (edit.changesNothing()) return ImportItem::Kind::Unchanged;
  return edit.before ? ImportItem::Kind::Changed : ImportItem::Kind::New;
}

}  // namespace

ImportPlan::ImportPlan(ExchangeDocument document, const StringArray& records, ImportWish wish)
    : m_document(std::move(document)), m_wish(std::move(wish)), m_rejected(std::move(m_document.rejected)) {
  const bool hasTables = !records.empty() && records.front()->tableRow();
  collect(hasTables);
  countRecords(records);
  if (hasTables) rejectAmbiguous();
  for (const std::shared_ptr<LocalizeString>& record : records) {
    m_firstItems.push_back(m_items.size());
    if (const Wanted* wanted = wantedFor(*record)) addItems(record, *wanted);
  }
  m_firstItems.push_back(m_items.size());
  if (m_items.empty() && !m_keys.empty()) m_notes.push_back({ImportNote::Kind::OtherProject, ""});
  addUnknown();
  m_wanted.clear();
  m_document = {};
}

void ImportPlan::collect(bool hasTables) {
  for (std::size_t unit = 0; unit < m_document.units.size(); ++unit) {
    const ExchangeUnit& taken = m_document.units[unit];
    add(unit, importKey(tableOf(taken, hasTables), taken.key));
  }
}

void ImportPlan::add(std::size_t unit, const std::string& key) {
  const std::vector<UnitText>& texts = m_document.units[unit].texts;
  for (std::size_t text = 0; text < texts.size(); ++text) {
    const std::size_t language = texts[text].language;
    if (texts[text].text.empty() || !m_wish.languages[language]) continue;
    const auto [wanted, isNew] = m_wanted.try_emplace(key);
    if (isNew) {
      wanted->second.places.resize(m_wish.languages.size());
      m_keys.push_back(key);
    }
    wanted->second.places[language] = Place{unit, text};
  }
}

/// Those of units that name no table may have several.
void ImportPlan::countRecords(const StringArray& records) {
  for (const std::shared_ptr<LocalizeString>& record : records) {
    const auto byKey = m_wanted.find(importKey("", record->name()));
    if (byKey != m_wanted.end()) ++byKey->second.records;
    if (!record->tableRow()) continue;
    const auto byTable = m_wanted.find(importKey(*record));
    if (byTable != m_wanted.end()) ++byTable->second.records;
  }
}

void ImportPlan::rejectAmbiguous() {
  std::erase_if(m_keys, [this](const std::string& key) {
    const auto wanted = m_wanted.find(key);
    if (!key.starts_with('\n') || wanted->second.records < 2) return false;
    const auto place = std::ranges::find_if(wanted->second.places, [](const auto& at) { return at.has_value(); });
    m_rejected.push_back({m_document.units[(*place)->unit].line, "Several tables hold the key “" + key.substr(1) +
                                                                     "”, and the file does not say which it means."});
    m_wanted.erase(wanted);
    return true;
  });
}

ImportPlan::Wanted* ImportPlan::wantedFor(const LocalizeString& record) {
  auto found = record.tableRow() ? m_wanted.find(importKey(record)) : m_wanted.end();
  if (found == m_wanted.end()) found = m_wanted.find(importKey("", record.name()));
  return found == m_wanted.end() ? nullptr : &found->second;
}

ImportItem ImportPlan::itemAt(const Place& place, LanguageCode language) const {
  const ExchangeUnit& unit = m_document.units[place.unit];
  ImportItem item;
  item.table = unit.table.empty() && !unit.file.empty() ? tableOfPath(unit.file) : unit.table;
  item.key = unit.key;
  item.edit.language = language;
  item.edit.after = unit.texts[place.text].text;
  item.source = unit.source;
  item.line = unit.line;
  item.isUnsure = unit.isUnsure;
  return item;
}

void ImportPlan::addItems(const std::shared_ptr<LocalizeString>& record, const Wanted& wanted) {
  for (std::size_t language = 0; language < wanted.places.size(); ++language) {
    if (!wanted.places[language]) continue;
    ImportItem item = itemAt(*wanted.places[language], *m_wish.languages[language]);
    if (record->tableRow()) item.table = record->tableRow()->table->id;
    item.edit = editOf(record, item.edit.language, std::move(item.edit.after));
    item.kind = kindOf(item.edit);
    const bool isTaken = m_wish.takesUnsure || !item.isUnsure;
    item.isChosen = item.changesSomething() && isTaken && isInScope(item.kind, m_wish.scope);
    m_items.push_back(std::move(item));
  }
}

void ImportPlan::addUnknown() {
  for (const std::string& key : m_keys) {
    const Wanted& wanted = m_wanted.at(key);
    if (wanted.records > 0) continue;
    ++m_unknownKeys;
    for (std::size_t language = 0; language < wanted.places.size(); ++language) {
      if (wanted.places[language]) m_items.push_back(itemAt(*wanted.places[language], *m_wish.languages[language]));
    }
  }
}

std::span<const ImportItem> ImportPlan::itemsOf(std::size_t record) const {
  const std::size_t first = m_firstItems[record];
  return std::span(m_items).subspan(first, m_firstItems[record + 1] - first);
}

std::vector<Edit> ImportPlan::edits() const {
  std::vector<Edit> chosen;
  for (const ImportItem& item : m_items) {
    if (item.isChosen) chosen.push_back(item.edit);
  }
  return chosen;
}

}  // namespace glossmill
