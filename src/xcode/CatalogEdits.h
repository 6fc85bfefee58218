#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text/Result.h"
#include "xcode/CatalogDocument.h"

namespace glossmill {

/// What a text of a catalog is to be.
struct CatalogEdit {
  std::string key;
  std::string language;
  Variation variation;
  std::optional<std::string> value;  ///< nothing: the text goes, with what is empty around it
  std::optional<std::string> state;  ///< nothing: "translated" where the value changes, otherwise what it is
  std::string comment;               ///< for a key that the catalog lacks
};

/// The bytes of the catalog after the edits, one after the other. Only the bytes of edited values and of their states
/// change; what is new stands where Xcode would put it. A stale key without any text left goes itself.
///
/// An error, for a catalog with a mistake or an edit that it cannot hold, leaves everything as it is.
Result<std::string> editedCatalog(const CatalogDocument& document, const std::vector<CatalogEdit>& edits);

}  // namespace glossmill
