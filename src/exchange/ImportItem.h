#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "exchange/ExchangeUnit.h"
#include "model/Edit.h"

namespace glossmill {

/// What an import would do with one translation of a file.
struct ImportItem {
  enum class Kind {
    New,        ///< there is no entry
    Changed,    ///< there is another text
    Unchanged,  ///< the same text is there
    Unknown,    ///< the project has no such string, and nothing is done
  };

  Kind kind = Kind::Unknown;
  std::string table;  ///< id; empty where there are no tables, or the file does not name it
  std::string key;
  Edit edit;               ///< without a record where the key is unknown
  std::string source;      ///< as the file says it
  std::uint32_t line = 0;  ///< of the file; 0 where it is not known
  bool isUnsure = false;   ///< the file says that somebody is to look at it
  bool isChosen = false;   ///< it is applied; only what changes something can be chosen

  bool changesSomething() const { return kind == Kind::New || kind == Kind::Changed; }
};

/// What of a file is taken.
enum class ImportScope { All, OnlyNew, OnlyChanged };

/// Something about the file as a whole that somebody should know.
struct ImportNote {
  enum class Kind {
    OtherLanguage,   ///< the file is in another language than the one that was asked for
    LackedLanguage,  ///< the project has no such language, and its texts are left out
    OtherProject,    ///< no key of the file is known
  };

  Kind kind = Kind::OtherProject;
  std::string language;  ///< as the file says it

  bool operator==(const ImportNote&) const = default;
};

}  // namespace glossmill
