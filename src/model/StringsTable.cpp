#include "model/StringsTable.h"

#include <algorithm>

namespace glossmill {

const StringsTable::File* StringsTable::find(LanguageCode language) const {
  const auto found =
      std::find_if(files.begin(), files.end(), [language](const File& file) { return file.language == language; });
  return found == files.end() ? nullptr : &*found;
}

}  // namespace glossmill
