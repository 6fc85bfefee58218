#pragma once

namespace glossmill {

/// Which strings an export takes.
enum class ExportScope {
  AllStrings,
  Untranslated,  ///< those without an entry in the language; an empty entry is one
};

}  // namespace glossmill
