#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/KeyReader.h"
#include "model/TextArena.h"
#include "platform/CancelFlag.h"
#include "strings/CommentRemover.h"

namespace glossmill {

struct PlainEntry;

/// One accepted entry: the number of its key and its raw value.
struct StringsFileEntry {
  KeyIndex::Number key = 0;
  StoredText value;
};

struct StringsFileDiagnostic {
  enum class Kind { BadFormat, NoMatch };
  Kind kind = Kind::BadFormat;
  StoredText text;                ///< what was rejected, or the key without a match; lies in the content
  std::int64_t line = 0;          ///< from 1, in the text without comments
  std::size_t entriesBefore = 0;  ///< so many entries stand before this line
};

/// What one strings file holds, entries and diagnostics each in the order of its lines.
struct StringsFileContent {
  std::vector<StringsFileEntry> entries;
  std::vector<StringsFileDiagnostic> diagnostics;
  TextArena diagnosticTexts;
  std::int64_t lineCount = 0;  ///< of the text without comments; the empty text is one line
  bool canceled = false;       ///< then lines may be missing from the above, but all of them are counted
};

/// Reads a `Localizable.strings` file that comes in pieces of UTF-8 text. One entry a line (rule 23): a quoted key,
/// "=", a quoted value, anything; the first quote ends a key or value also behind a backslash (rule 15). Values go into
/// an arena. Plain lines are read where they lie, the others from a copy without comments.
class StringsFileParser {
 public:
  StringsFileParser(KeyReader& keys, TextArena& values, const CancelFlag& canceled);

  void feed(std::string_view piece);
  /// The end of the file.
  StringsFileContent finish();

 private:
  struct Line;

  bool isAtLineStart() const;
  std::size_t takePlainLines(std::string_view text);
  void takePlainEntry(const PlainEntry& entry);
  void feedLine(std::string_view& piece);
  void takeLines();
  void dropTakenLines();
  bool countLine();
  void nextLine(const Line& line);
  void takeLine(const Line& line);
  std::optional<KeyIndex::Number> numberOf(std::string_view key);
  void takeValue(const Line& line, KeyIndex::Number key);
  void reject(std::string_view text) { report(StringsFileDiagnostic::Kind::BadFormat, text); }
  void report(StringsFileDiagnostic::Kind kind, std::string_view text);

  KeyReader& m_keys;
  TextArena& m_values;
  const CancelFlag& m_canceled;
  CommentRemover m_remover;
  CleanText m_clean;
  std::size_t m_lineStart = 0;   ///< of the first line not yet taken, in m_clean.text
  std::size_t m_firstQuote = 0;  ///< its first quote, in m_clean.quotes
  StringsFileContent m_content;
};

}  // namespace glossmill
