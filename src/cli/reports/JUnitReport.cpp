#include "cli/reports/JUnitReport.h"

#include <algorithm>

#include "checks/CheckList.h"
#include "text/PrintableText.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::string_view kProjectSuite = "project";

/// What stands for a character that cannot stand for itself between quotes; empty for all others.
std::string_view referenceFor(char32_t character) {
  switch (character) {
    case U'&':
      return "&amp;";
    case U'<':
      return "&lt;";
    case U'>':
      return "&gt;";
    case U'"':
      return "&quot;";
    case U'\n':
      return "&#10;";
    case U'\t':
      return "&#9;";
    case 0xFFFE:
    case 0xFFFF:
      return kReplacementCharacter;
    default:
      return {};
  }
}

/// Text that may stand anywhere in a document, also between quotes. XML has no way to say most control characters, not
/// even by number, nor the last two characters of the basic plane.
std::string xmlText(std::string_view raw) {
  std::string printable;
  appendPrintableText(printable, raw);
  std::string_view rest = printable;
  std::string xml;
  while (!rest.empty()) {
    const std::string_view before = rest;
    const char32_t character = takeCodePoint(rest);
    const std::string_view reference = referenceFor(character);
    xml += reference.empty() ? before.substr(0, before.size() - rest.size()) : reference;
  }
  return xml;
}

std::string attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + xmlText(value) + "\"";
}

std::string attribute(std::string_view name, std::size_t value) {
  return attribute(name, std::to_string(value));
}

/// The findings of one language.
struct Suite {
  std::string_view name;
  std::vector<const PlacedFinding*> findings;
};

bool isOfSuite(const Suite& suite, const PlacedFinding& finding) {
  return finding.language.empty() ? suite.name == kProjectSuite : suite.name == finding.language;
}

bool hasCheck(const Suite& suite, Check check) {
  return std::ranges::any_of(suite.findings, [check](const PlacedFinding* finding) { return finding->check == check; });
}

std::vector<Suite> suitesOf(const CheckReport& report) {
  std::vector<Suite> suites;
  for (const std::string& language : report.languages) suites.push_back({language, {}});
  suites.push_back({kProjectSuite, {}});
  for (const PlacedFinding& finding : report.findings) {
    const auto suite = std::ranges::find_if(suites, [&](const Suite& one) { return isOfSuite(one, finding); });
    if (suite != suites.end()) suite->findings.push_back(&finding);
  }
  if (suites.back().findings.empty()) suites.pop_back();
  return suites;
}

std::size_t failuresIn(const CheckReport& report, const Suite& suite) {
  return static_cast<std::size_t>(
      std::ranges::count_if(suite.findings, [&](const PlacedFinding* finding) { return isFailure(report, *finding); }));
}

std::string caseName(const PlacedFinding& finding) {
  return finding.key.empty() ? finding.sentence : "“" + shownText(finding.key) + "”: " + finding.sentence;
}

std::string placeLine(const CheckReport& report, const PlacedFinding& finding) {
  std::string place = reportedPath(report, finding);
  for (const std::uint32_t number : {finding.line, finding.column}) {
    if (number != 0) place += ":" + std::to_string(number);
  }
  return place;
}

std::string className(const Suite& suite, Check check) {
  return std::string(suite.name) + "." + std::string(entryOf(check).name);
}

std::string findingCase(const CheckReport& report, const Suite& suite, const PlacedFinding& finding) {
  const std::string body = xmlText(placeLine(report, finding) + "\n" + plainText(finding));
  std::string text = "    <testcase" + attribute("classname", className(suite, finding.check)) +
                     attribute("name", caseName(finding)) + attribute("file", reportedPath(report, finding));
  if (finding.line != 0) text += attribute("line", finding.line);
  text += ">\n";
  if (isFailure(report, finding)) {
    text += "      <failure" + attribute("type", entryOf(finding.check).name) + attribute("message", finding.sentence) +
            ">" + body + "</failure>\n";
  } else {
    text += "      <system-out>" + body + "</system-out>\n";
  }
  return text + "    </testcase>\n";
}

/// Checks that were made and found nothing.
std::vector<Check> passedIn(const CheckReport& report, const Suite& suite) {
  std::vector<Check> passed;
  for (const Check check : report.checks) {
    if (!hasCheck(suite, check)) passed.push_back(check);
  }
  return passed;
}

std::size_t casesIn(const CheckReport& report, const Suite& suite) {
  return suite.findings.size() + passedIn(report, suite).size();
}

std::string suiteText(const CheckReport& report, const Suite& suite) {
  std::string text = "  <testsuite" + attribute("name", suite.name) + attribute("tests", casesIn(report, suite)) +
                     attribute("failures", failuresIn(report, suite)) + attribute("errors", std::size_t{0}) + ">\n";
  for (const Check check : passedIn(report, suite)) {
    text += "    <testcase" + attribute("classname", className(suite, check)) + attribute("name", "nothing was found") +
            "/>\n";
  }
  for (const PlacedFinding* finding : suite.findings) text += findingCase(report, suite, *finding);
  return text + "  </testsuite>\n";
}

}  // namespace

std::string junitReport(const CheckReport& report) {
  std::size_t cases = 0;
  std::size_t failures = 0;
  std::string suites;
  for (const Suite& suite : suitesOf(report)) {
    cases += casesIn(report, suite);
    failures += failuresIn(report, suite);
    suites += suiteText(report, suite);
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites" + attribute("name", "glossmill-cli check") +
         attribute("tests", cases) + attribute("failures", failures) + ">\n" + suites + "</testsuites>\n";
}

}  // namespace glossmill
