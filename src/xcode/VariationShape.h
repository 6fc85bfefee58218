#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "xcode/CatalogDocument.h"

namespace glossmill {

/// Which texts a key of a catalog needs in which language: those of the language itself, or where it has none those of
/// the source language; of counts those of the language's plural categories. The source language needs no text where it
/// has none, since the key is one.
class VariationShape {
 public:
  /// `units` outlive this.
  VariationShape(const std::vector<CatalogUnit>& units, const std::string& source,
                 const std::vector<std::string>& languages);

  /// What any language has or needs: the text of the key itself first, plural categories in their order.
  const std::vector<Variation>& rows() const { return m_rows; }
  /// Those of `languages` that do not need it.
  std::vector<std::string> languagesWithout(const Variation& variation) const;
  /// The source language has variations and no text for all of them.
  bool sourceVaries() const;
  /// Its text in the source language, or the one for `other` counts; null where there is none.
  const CatalogUnit* sourceOf(const Variation& variation) const;

 private:
  using Variations = std::vector<Variation>;

  Variations variationsOf(const std::string& language) const;
  Variations neededIn(const std::string& language) const;
  void makeRows();

  const std::vector<CatalogUnit>& m_units;
  const std::string& m_source;
  const std::vector<std::string>& m_languages;
  bool m_isPlain = true;                       ///< no text varies
  std::map<std::string, Variations> m_needed;  ///< by language, where texts vary
  std::vector<Variation> m_rows;
};

}  // namespace glossmill
