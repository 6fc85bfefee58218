#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// A translation of a unit; without one there is no entry.
struct UnitText {
  std::size_t language = 0;  ///< which of the document's
  std::string text;

  bool operator==(const UnitText&) const = default;
};

/// One string as formats for translators write and read it.
struct ExchangeUnit {
  std::int64_t number = 0;  ///< in the project's list from 1
  std::uint32_t line = 0;   ///< of the file that was read, from 1; 0 where it is not known
  std::string table;        ///< id; empty where the project has no tables, or the file does not name it
  std::string file;         ///< path of its strings file in the source language, or of what was read in its place
  std::string key;
  std::string source;               ///< the text that is translated from; the key where there is no other
  std::string comment;              ///< of several lines where there are several
  std::vector<std::string> places;  ///< "path:line", or only the path
  std::vector<UnitText> texts;      ///< in the order of the languages
  bool isUnsure = false;            ///< somebody is to look at the translation: it is offered, not taken
  bool isFormat = false;            ///< the source text holds format specifiers

  /// Null without an entry.
  const std::string* textIn(std::size_t language) const {
    for (const UnitText& text : texts) {
      if (text.language == language) return &text.text;
    }
    return nullptr;
  }
};

/// Part of a file that was read, and could not be taken.
struct RejectedLine {
  std::uint32_t line = 0;  ///< from 1; 0 where it is not known
  std::string sentence;

  bool operator==(const RejectedLine&) const = default;
};

/// What goes to a translator in one file, and what comes back.
struct ExchangeDocument {
  std::string project;                 ///< name
  std::string sourceLanguage;          ///< code; empty where nobody knows it
  std::vector<std::string> languages;  ///< codes of the translations; one empty code: the file does not say it
  std::vector<ExchangeUnit> units;
  std::vector<RejectedLine> rejected;
};

}  // namespace glossmill
