#include "cli/reports/CheckReport.h"

#include <algorithm>

#include "text/PrintableText.h"

namespace glossmill {

namespace {

/// A line break is a line break in a value; here it is spelled.
std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char byte : text) {
    switch (byte) {
      case '\n':
        line += "\\n";
        break;
      case '\r':
        line += "\\r";
        break;
      case '\t':
        line += "\\t";
        break;
      default:
        line += byte;
    }
  }
  return line;
}

}  // namespace

bool isFailure(const CheckReport& report, const PlacedFinding& finding) {
  return finding.severity >= report.failsFrom;
}

bool hasFailure(const CheckReport& report) {
  return std::ranges::any_of(report.findings, [&](const PlacedFinding& finding) { return isFailure(report, finding); });
}

std::size_t countOf(const CheckReport& report, Severity severity) {
  return static_cast<std::size_t>(std::ranges::count(report.findings, severity, &PlacedFinding::severity));
}

std::string reportedPath(const CheckReport& report, const PlacedFinding& finding) {
  if (finding.file.starts_with('/')) return finding.file;
  std::string path = report.prefix + finding.file;
  if (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path.empty() ? "." : path;
}

std::vector<DetailLine> detailsOf(const PlacedFinding& finding) {
  std::vector<DetailLine> details;
  if (finding.key.empty()) return details;
  const bool sourceIsKey = finding.source == finding.key;
  details.push_back({"key", finding.key, sourceIsKey ? finding.inSource : TextRange{}});
  if (finding.source && !sourceIsKey) details.push_back({"source", *finding.source, finding.inSource});
  if (finding.translation) {
    details.push_back({finding.language, *finding.translation, finding.inTranslation});
  } else if (!finding.language.empty()) {
    details.push_back({finding.language, {}, {}, false});
  }
  return details;
}

std::string shownText(std::string_view text) {
  return printableLine(onOneLine(text));
}

std::string plainText(const PlacedFinding& finding) {
  std::string text = printableLine(finding.sentence);
  for (const DetailLine& detail : detailsOf(finding)) {
    text += "\n" + printableLine(detail.name) + ": ";
    text += detail.isThere ? "\"" + shownText(detail.text) + "\"" : "no entry";
  }
  return text;
}

}  // namespace glossmill
