#include "cli/reports/GitHubReport.h"

#include "checks/CheckList.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

std::string_view commandOf(Severity severity) {
  if (severity == Severity::Info) return "notice";
  return nameOf(severity);
}

/// Commands are lines, in which a percent sign begins what stands for another character.
std::string escapedMessage(std::string_view text) {
  std::string printable;
  appendPrintableText(printable, text);
  std::string escaped;
  for (const char byte : printable) {
    if (byte == '%') {
      escaped += "%25";
    } else if (byte == '\n') {
      escaped += "%0A";
    } else {
      escaped += byte;
    }
  }
  return escaped;
}

/// A colon or a comma would end the value of a property.
std::string property(std::string_view name, std::string_view value) {
  std::string text = std::string(name) + "=";
  for (const char byte : escapedMessage(printableLine(value))) {
    if (byte == ':') {
      text += "%3A";
    } else if (byte == ',') {
      text += "%2C";
    } else {
      text += byte;
    }
  }
  return text;
}

std::string commandText(const CheckReport& report, const PlacedFinding& finding) {
  std::string text =
      "::" + std::string(commandOf(finding.severity)) + " " + property("file", reportedPath(report, finding));
  if (finding.line != 0) text += "," + property("line", std::to_string(finding.line));
  if (finding.column != 0) text += "," + property("col", std::to_string(finding.column));
  return text + "," + property("title", entryOf(finding.check).name) + "::" + escapedMessage(plainText(finding)) + "\n";
}

}  // namespace

std::string githubReport(const CheckReport& report) {
  std::string text;
  for (const PlacedFinding& finding : report.findings) text += commandText(report, finding);
  return text;
}

}  // namespace glossmill
