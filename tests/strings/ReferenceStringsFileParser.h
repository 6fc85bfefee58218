#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "strings/ReferenceCommentRemover.h"
#include "strings/StringsFileFindings.h"

namespace glossmill {

/// The rules of strings files written down as plainly as possible: comments removed, lines split, and one search after
/// the other on a copy of what is left of a line, as a measure for the quick parser.
class ReferenceStringsFileParser {
 public:
  ReferenceStringsFileParser(std::string_view text, const std::vector<std::string>& keys) : m_keys(keys) {
    for (const std::string& line : linesOf(ReferenceCommentRemover::remove(text))) {
      ++findings.lineCount;
      if (!line.empty()) addLocalizedString(line);
    }
  }

  StringsFileFindings findings;

 private:
  static std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char byte : text) {
      if (byte == '\n') {
        lines.emplace_back();
      } else {
        lines.back() += byte;
      }
    }
    return lines;
  }

  void addLocalizedString(std::string rest) {
    const std::size_t open = rest.find('"');
    if (open == std::string::npos) return bad(rest);
    rest = rest.substr(open + 1);
    const std::size_t close = rest.find('"');
    if (close == std::string::npos) return;
    const std::string key = rest.substr(0, close);
    if (std::find(m_keys.begin(), m_keys.end(), key) == m_keys.end()) {
      report("no match: " + key);
      return;
    }
    addValue(key, rest.substr(close));
  }

  void addValue(const std::string& key, std::string rest) {
    const std::size_t equals = rest.find('=');
    if (equals == std::string::npos) return bad(rest);
    rest = rest.substr(equals);
    const std::size_t open = rest.find('"');
    if (open == std::string::npos) return bad(rest);
    rest = rest.substr(open + 1);
    const std::size_t close = rest.find('"');
    if (close == std::string::npos) return bad(rest);
    findings.entries.emplace_back(key, rest.substr(0, close));
  }

  void bad(const std::string& rest) { report("bad format: " + rest); }
  void report(const std::string& what) {
    findings.diagnostics.push_back(what);
    findings.diagnosticLines.push_back(findings.lineCount);
  }

  const std::vector<std::string>& m_keys;
};

}  // namespace glossmill
