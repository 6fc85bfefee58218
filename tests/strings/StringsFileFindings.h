#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "strings/StringsFileParser.h"

namespace glossmill {

/// What was found in a strings file, in a form that is easy to compare and to print.
struct StringsFileFindings {
  std::vector<std::pair<std::string, std::string>> entries;  ///< key and value
  std::vector<std::string> diagnostics;                      ///< "bad format: …" and "no match: …"
  std::vector<std::int64_t> diagnosticLines;                 ///< of the above
  std::int64_t lineCount = 0;
  bool operator==(const StringsFileFindings&) const = default;
};

inline void PrintTo(const StringsFileFindings& findings, std::ostream* out) {
  *out << findings.lineCount << " lines";
  for (const auto& [key, value] : findings.entries) *out << "\n[" << key << "] = [" << value << "]";
  for (const std::string& diagnostic : findings.diagnostics) *out << "\n" << diagnostic;
}

inline StringsFileContent parsePieces(const std::vector<std::string_view>& pieces, KeyReader& reader,
                                      TextArena& values) {
  const CancelFlag canceled;
  StringsFileParser parser(reader, values, canceled);
  for (const std::string_view piece : pieces) parser.feed(piece);
  return parser.finish();
}

/// The parser's findings in a file that comes in these pieces, in a project with these keys, after it has read
/// `before`.
inline StringsFileFindings parseStringsFile(const std::vector<std::string_view>& pieces,
                                            const std::vector<std::string>& keys, std::string_view before = {}) {
  KeyIndex index;
  for (const std::string& key : keys) index.add(key);
  KeyReader reader(index);
  TextArena values;
  parsePieces({before}, reader, values);
  const StringsFileContent content = parsePieces(pieces, reader, values);

  StringsFileFindings findings;
  for (const StringsFileEntry& entry : content.entries)
    findings.entries.emplace_back(keys[entry.key], entry.value.view());
  for (const StringsFileDiagnostic& diagnostic : content.diagnostics) {
    const bool noMatch = diagnostic.kind == StringsFileDiagnostic::Kind::NoMatch;
    findings.diagnostics.push_back((noMatch ? "no match: " : "bad format: ") + std::string(diagnostic.text.view()));
    findings.diagnosticLines.push_back(diagnostic.line);
  }
  findings.lineCount = content.lineCount;
  return findings;
}

}  // namespace glossmill
