#pragma once

#include <string>

#include "model/LocalizeString.h"

namespace glossmill {

/// By what a text that comes back is found in a project with tables: the table, which has no line feed in its id, and
/// the key.
inline std::string importKey(const std::string& table, const std::string& key) {
  return table + "\n" + key;
}

inline std::string importKey(const LocalizeString& record) {
  return importKey(record.tableRow()->table->id, record.name());
}

}  // namespace glossmill
