#include "cli/reports/TextReport.h"

#include <algorithm>
#include <set>

#include "checks/CheckList.h"
#include "cli/DisplayText.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

Paint paintOf(Severity severity) {
  if (severity == Severity::Error) return Paint::Bad;
  return severity == Severity::Warning ? Paint::Gap : Paint::Plain;
}

/// What is at fault stands out.
std::string markedText(const DetailLine& detail, const Painter& painted) {
  const std::string_view text = detail.text;
  const std::size_t begin = std::min(detail.marked.begin, text.size());
  const std::size_t length = std::min(detail.marked.length, text.size() - begin);
  if (length == 0) return inQuotes(shownText(text));
  return inQuotes(shownText(text.substr(0, begin)) + painted(Paint::Bad, shownText(text.substr(begin, length))) +
                  shownText(text.substr(begin + length)));
}

std::string detailsText(const PlacedFinding& finding, const Painter& painted) {
  const std::vector<DetailLine> details = detailsOf(finding);
  std::size_t widest = 0;
  for (const DetailLine& detail : details) widest = std::max(widest, displayWidth(printableLine(detail.name)));
  std::string text;
  for (const DetailLine& detail : details) {
    const std::string name = printableLine(detail.name);
    text += "    " + name + std::string(widest - displayWidth(name) + 2, ' ');
    text += (detail.isThere ? markedText(detail, painted) : "no entry") + "\n";
  }
  return text;
}

std::string placeText(const CheckReport& report, const PlacedFinding& finding) {
  std::string place = printableLine(reportedPath(report, finding));
  for (const std::uint32_t number : {finding.line, finding.column}) {
    if (number != 0) place += ":" + std::to_string(number);
  }
  return place;
}

std::string findingText(const CheckReport& report, const PlacedFinding& finding, const Painter& painted) {
  return painted(Paint::Heading, placeText(report, finding)) + ": " +
         painted(paintOf(finding.severity), nameOf(finding.severity)) + ": " + printableLine(finding.sentence) + " [" +
         std::string(entryOf(finding.check).name) + "]\n" + detailsText(finding, painted);
}

std::size_t languagesWithFindings(const CheckReport& report) {
  std::set<std::string_view> languages;
  for (const PlacedFinding& finding : report.findings) {
    if (!finding.language.empty()) languages.insert(finding.language);
  }
  return languages.size();
}

std::string summary(const CheckReport& report) {
  const std::string checked = counted(report.languages.size(), "language");
  if (report.findings.empty()) return "Nothing was found in " + checked + ".\n";
  std::string counts;
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Info}) {
    const std::size_t count = countOf(report, severity);
    if (count != 0) counts += (counts.empty() ? "" : ", ") + counted(count, nameOf(severity));
  }
  return "\n" + counts + "; " + std::to_string(languagesWithFindings(report)) + " of " + checked +
         (report.languages.size() == 1 ? " has findings.\n" : " have findings.\n");
}

}  // namespace

std::string textReport(const CheckReport& report, const Painter& painted) {
  std::string text;
  for (const PlacedFinding& finding : report.findings) text += findingText(report, finding, painted);
  return text + summary(report);
}

}  // namespace glossmill
