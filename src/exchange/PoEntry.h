#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// An entry of a PO file while it is read.
struct PoEntry {
  std::uint32_t line = 0;  ///< of its first keyword; 0 before that
  std::string comment;
  bool isFuzzy = false;
  std::optional<std::string> context;
  std::optional<std::string> id;
  std::optional<std::string> plural;
  std::optional<std::string> text;
  std::array<std::optional<std::string>, 10> pluralTexts;

  bool isPlural() const { return plural || pluralTexts[0]; }
  bool isComplete() const { return id && (text || pluralTexts[0]); }

  /// Null for a word that PO files do not know.
  std::optional<std::string>* fieldOf(std::string_view keyword) {
    if (keyword == "msgctxt") return &context;
    if (keyword == "msgid") return &id;
    if (keyword == "msgid_plural") return &plural;
    if (keyword == "msgstr") return &text;
    const bool isNumbered = keyword.size() == 9 && keyword.starts_with("msgstr[") && keyword.back() == ']';
    if (!isNumbered || keyword[7] < '0' || keyword[7] > '9') return nullptr;
    return &pluralTexts[static_cast<std::size_t>(keyword[7] - '0')];
  }
};

}  // namespace glossmill
