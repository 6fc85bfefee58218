#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "model/LocalizeString.h"

namespace glossmill {

/// A record of the table with this id, which a translation is wanted of.
inline std::shared_ptr<LocalizeString> tableRecord(const std::string& tableId, std::string_view key) {
  auto table = std::make_shared<StringsTable>();
  table->id = tableId;
  auto record = std::make_shared<LocalizeString>();
  record->setName(key);
  record->setTableRow(std::make_unique<TableRow>());
  record->tableRow()->table = std::move(table);
  return record;
}

}  // namespace glossmill
