#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/LanguageCode.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// The strings files of one name in the `.lproj` directories beside one another, or a string catalog.
struct StringsTable {
  struct File {
    FileUrl file;
    LanguageCode language;                  ///< the column, which `Base.lproj` and `English.lproj` share with others
    bool isInProject = true;                ///< a package names it or its folder; otherwise it only lies beside one
    std::optional<std::uint32_t> encoding;  ///< what the project says of it: a number that encodingOfNumber takes
    bool hasMistake = false;                ///< it could not be read to its end, and is not to be written
  };

  enum class Format : std::uint8_t { Strings, Catalog };

  std::string id;     ///< directory and name, as `macosx/Localizable`; for a table in the project's directory its name
  std::string name;   ///< of the files, without their extension
  FileUrl directory;  ///< that holds the `.lproj` directories; empty for a table without files, which has none yet
  LanguageCode development;  ///< the language that its texts are translated from
  std::vector<File> files;   ///< at most one a language, in the order of the codes
  bool hasCalls = false;
  Format format = Format::Strings;
  FileUrl catalog;  ///< the one file of a string catalog, which `files` has for each of its languages

  /// Null where the table has no file for the language.
  const File* find(LanguageCode language) const;
  /// For a language that has none yet.
  void addFile(File file);
};

using StringsTables = std::vector<std::shared_ptr<StringsTable>>;

}  // namespace glossmill
