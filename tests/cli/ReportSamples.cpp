// Prints a report of findings that hold whatever is hard to tell, for readers of other make: report_samples FORMAT.

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "cli/reports/GitHubReport.h"
#include "cli/reports/JUnitReport.h"
#include "cli/reports/JsonReport.h"
#include "cli/reports/SarifReport.h"
#include "cli/reports/TextReport.h"

namespace glossmill {
namespace {

struct Sample {
  Check check;
  Severity severity;
  std::string file;
  std::uint32_t line;
  std::uint32_t column;
  std::string language;
  std::string key;
  std::optional<std::string> source;
  std::optional<std::string> translation;
  std::string sentence;
};

const std::vector<Sample>& samples() {
  using enum Severity;
  static const std::vector<Sample> kSamples = {
      {Check::Missing, Error, "", 0, 0, "nb", "Anchor", "Drop the anchor", std::nullopt, "There is no translation."},
      {Check::Format, Error, "de.lproj/Localizable.strings", 12, 9, "de", "%d boats, 100%", "%d boats, 100%",
       "%@ Boote: 100%", "“%d” of the source text is missing."},
      {Check::WhiteSpace, Warning, "de.lproj/Two, three: 100%.strings", 3, 0, "de", "Name:\t", "Name:\t", "Name:\n",
       "The white space at the end differs from the source text's."},
      {Check::Invisible, Warning, "fr.lproj/Localizable.strings", 4, 1, "fr", "Bell", "Bell",
       "a\x07\x1B[31mb\x7F\xC2\x9B\r\n\xE2\x80\xAEz\xEF\xBF\xBE\xEF\xBF\xBF",
       "The text holds the control character \x07."},
      {Check::NotKept, Error, "fr.lproj/Localizable.strings", 5, 1, "fr", "Broken \xFF bytes \xE2\x82", std::nullopt,
       "<a href=\"x\">&amp;</a> ]]> <![CDATA[ --> 'q'", "The text would not be read back as it is after saving."},
      {Check::Malformed, Error, "/elsewhere/de lproj/Ünder.strings", 7, 2, "de", "", std::nullopt, std::nullopt,
       "A line makes no sense: ::error file=x,line=1::%0Afalse"},
      {Check::NotLiteral, Info, "a:b/main.m", 2, 3, "", "", std::nullopt, std::nullopt, "The key is no literal: title"},
  };
  return kSamples;
}

CheckReport sampleReport() {
  CheckReport report;
  report.languages = {"de", "fr", "nb", "sv"};
  report.checks = {Check::Missing,   Check::Format,     Check::NotKept,   Check::Malformed,
                   Check::Duplicate, Check::WhiteSpace, Check::Invisible, Check::NotLiteral};
  report.root = FileUrl("/srv/build place");
  report.prefix = "App 2/";
  report.baseline = BaselineOutcome{2, {"missing de a \"b\" 0123456789abcdef"}};
  for (const Sample& sample : samples()) {
    PlacedFinding finding;
    finding.check = sample.check;
    finding.severity = sample.severity;
    finding.file = sample.file;
    finding.line = sample.line;
    finding.column = sample.column;
    finding.language = sample.language;
    finding.key = sample.key;
    finding.source = sample.source;
    finding.translation = sample.translation;
    finding.sentence = sample.sentence;
    finding.fingerprint = "0000000000000000";
    finding.fingerprint.back() = static_cast<char>('0' + report.findings.size());
    report.findings.push_back(std::move(finding));
  }
  report.findings[1].inSource = {0, 2};
  report.findings[1].inTranslation = {0, 2};
  return report;
}

std::string sampleText(std::string_view format) {
  const CheckReport report = sampleReport();
  if (format == "json") return jsonReport(report);
  if (format == "sarif") return sarifReport(report);
  if (format == "junit") return junitReport(report);
  if (format == "github") return githubReport(report);
  return textReport(report, [](Paint paint, std::string_view text) {
    return paint == Paint::Bad ? "{" + std::string(text) + "}" : std::string(text);
  });
}

}  // namespace
}  // namespace glossmill

int main(int count, char** arguments) {
  if (count != 2) return 2;
  const std::string text = glossmill::sampleText(arguments[1]);
  return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
