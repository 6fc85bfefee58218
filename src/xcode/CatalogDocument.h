#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Variation.h"
#include "text/DecodedFile.h"
#include "xcode/SyntaxError.h"
#include "xcode/ValueTree.h"

namespace glossmill {

/// One text of a key in one language.
struct CatalogUnit {
  std::string language;
  Variation variation;
  std::string state;  ///< "new", "translated", "needs_review", "stale", …; "" where the catalog does not say
  std::string value;

  bool operator==(const CatalogUnit&) const = default;
};

/// One key of a catalog with all of its texts, in the order of the file.
struct CatalogKey {
  std::string key;
  std::string comment;
  std::string extractionState;  ///< "manual", "stale", …; "" where the catalog does not say
  bool shouldTranslate = true;
  std::vector<CatalogUnit> units;
};

/// A string catalog (`.xcstrings`): its text as it is, and where its values stand in it. Nothing of it ever changes: an
/// edit gives new bytes (CatalogEdits.h). docs/xcode/catalogs.md says what is taken.
class CatalogDocument {
 public:
  struct RepeatedKey {
    std::string key;
    std::vector<std::size_t> lines;  ///< of all its entries
    bool operator==(const RepeatedKey&) const = default;
  };

  explicit CatalogDocument(std::string_view bytes);
  // The tree looks at the text.
  CatalogDocument(const CatalogDocument&) = delete;
  CatalogDocument& operator=(const CatalogDocument&) = delete;

  /// Why the file must not be written. What stands in front of it was read.
  const std::optional<SyntaxError>& error() const { return m_error; }
  const DecodedFile& file() const { return m_file; }
  const ValueTree& tree() const { return m_tree; }
  /// "en" where the file says nothing.
  std::string sourceLanguage() const;

  /// Those that count, in the order of the file: of a repeated key the last one.
  const std::vector<ValueTree::Number>& keys() const { return m_keys; }
  CatalogKey keyAt(ValueTree::Number number) const;
  /// Of all texts, ascending, each once.
  std::vector<std::string> languages() const;
  std::vector<RepeatedKey> repeatedKeys() const;

 private:
  void decode(std::string_view bytes);
  void readTree();
  void checkStructure();
  void findKeys();
  void collect(ValueTree::Number object, const Variation& variation, const std::string& language,
               std::vector<CatalogUnit>& units) const;
  void fail(std::size_t at, std::string_view sentence);

  DecodedFile m_file;
  ValueTree m_tree;
  std::vector<ValueTree::Number> m_keys;
  std::optional<SyntaxError> m_error;
};

}  // namespace glossmill
