#include "model/StringsTable.h"

#include <algorithm>
#include <utility>

namespace glossmill {

const StringsTable::File* StringsTable::find(LanguageCode language) const {
  const auto found =
      std::find_if(files.begin(), files.end(), [language](const File& file) { return file.language == language; });
  return found == files.end() ? nullptr : &*found;
}

void StringsTable::addFile(File file) {
  const auto comesFirst = [](const File& a, const File& b) { return a.language.text() < b.language.text(); };
  const auto at = std::upper_bound(files.begin(), files.end(), file, comesFirst);
  files.insert(at, std::move(file));
}

}  // namespace glossmill
