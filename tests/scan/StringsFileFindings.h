#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "scan/StringsFileParser.h"

namespace glossmill {

/// What was found in a strings file, in a form that is easy to compare and to print.
struct StringsFileFindings {
  std::vector<std::pair<std::string, std::string>> entries;  ///< key and value
  std::vector<std::string> diagnostics;                      ///< "bad format: …" and "no match: …"
  std::int64_t lineCount = 0;
  bool operator==(const StringsFileFindings&) const = default;
};

inline void PrintTo(const StringsFileFindings& findings, std::ostream* out) {
  *out << findings.lineCount << " lines";
  for (const auto& [key, value] : findings.entries) *out << "\n[" << key << "] = [" << value << "]";
  for (const std::string& diagnostic : findings.diagnostics) *out << "\n" << diagnostic;
}

/// The parser's findings in a file that comes in these pieces, in a project with these keys.
inline StringsFileFindings parseStringsFile(const std::vector<std::string_view>& pieces,
                                            const std::vector<std::string>& keys) {
  KeyIndex index;
  for (const std::string& key : keys) index.add(key);
  KeyReader reader(index);
  TextArena values;
  const CancelFlag canceled;
  StringsFileParser parser(reader, values, canceled);
  for (const std::string_view piece : pieces) parser.feed(piece);
  const StringsFileContent content = parser.finish();

  StringsFileFindings findings;
  for (const StringsFileEntry& entry : content.entries)
    findings.entries.emplace_back(keys[entry.key], entry.value.view());
  for (const StringsFileDiagnostic& diagnostic : content.diagnostics) {
    const bool noMatch = diagnostic.kind == StringsFileDiagnostic::Kind::NoMatch;
    findings.diagnostics.push_back((noMatch ? "no match: " : "bad format: ") + diagnostic.text);
  }
  findings.lineCount = content.lineCount;
  return findings;
}

}  // namespace glossmill
