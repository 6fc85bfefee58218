#include "cli/FindingsCheck.h"

#include <algorithm>

#include "checks/CheckList.h"
#include "cli/DisplayText.h"
#include "cli/reports/Baseline.h"
#include "cli/reports/GitHubReport.h"
#include "cli/reports/JUnitReport.h"
#include "cli/reports/JsonReport.h"
#include "cli/reports/SarifReport.h"
#include "cli/reports/TextReport.h"
#include "host/Paths.h"
#include "platform/ReadText.h"
#include "project/ProjectFindings.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

constexpr std::string_view kToStandardOutput = "-";
constexpr std::size_t kMostGone = 20;

/// Those that were asked for, or all that the project does not turn off.
std::vector<Check> wantedChecks(const ProjectSession& session, const FindingsOptions& options) {
  std::vector<Check> checks;
  for (const CheckEntry& entry : checkList()) {
    const auto setting = session.checks().severities.find(entry.check);
    const bool isOff = setting != session.checks().severities.end() && !setting->second;
    const bool isNamed = std::ranges::find(options.checks, entry.name) != options.checks.end();
    if (options.checks.empty() ? !isOff : isNamed) checks.push_back(entry.check);
  }
  return checks;
}

/// Paths begin where the program runs, as other programs and code hosts expect them, unless the project lies elsewhere.
void placeProject(const ProjectSession& session, CheckReport& report) {
  const FileUrl& project = session.project().projectDirectory();
  report.root = absoluteUrl(".");
  if (report.root == project) return;
  const std::string_view below = report.root.empty() ? std::string_view() : pathBelow(report.root, project);
  if (below.empty()) {
    report.root = project;
  } else {
    report.prefix = std::string(below) + "/";
  }
}

CheckReport reportOf(ProjectSession& session, const LanguageArray& languages, const std::vector<std::string>& tables,
                     const FindingsOptions& options) {
  CheckReport report;
  report.checks = wantedChecks(session, options);
  report.failsFrom = severityNamed(options.failOn).value_or(Severity::Error);
  FindingsWish wish;
  if (!options.checks.empty()) wish.checks = report.checks;
  for (const std::shared_ptr<Language>& language : languages) {
    report.languages.push_back(language->iso639());
    wish.languages.push_back(language->code());
  }
  placeProject(session, report);
  report.findings =
      projectFindings(checkedProject(session.project(), session.checks()), session.checks(), wish, session.files());
  std::erase_if(report.findings, [&tables](const PlacedFinding& finding) {
    return !tables.empty() && !finding.table.empty() && std::ranges::find(tables, finding.table) == tables.end();
  });
  return report;
}

ExitCode explainFile(const ProjectSession& session, std::string_view doing, const std::string& file,
                     const std::string& why) {
  session.console().error("cannot " + std::string(doing) + " " + inQuotes(file) + ": " + why);
  return ExitCode::Unusable;
}

/// Anything but Fine has been explained on the console.
ExitCode writeFile(ProjectSession& session, const std::string& file, std::string_view text) {
  const FileUrl target = absoluteUrl(file);
  if (target.empty()) return explainFile(session, "write", file, "The name of the file is empty.");
  const Outcome written = session.files().writeText(target, text);
  return written ? ExitCode::Fine : explainFile(session, "write", file, written.error().sentence);
}

ExitCode writeKnown(ProjectSession& session, const CheckReport& report, const std::string& file) {
  const ExitCode written = writeFile(session, file, baselineText(report.findings));
  if (written != ExitCode::Fine) return written;
  session.reportFiles();
  session.console().message(counted(report.findings.size(), "finding") +
                            (report.findings.size() == 1 ? " is" : " are") + " known from now on.");
  return ExitCode::Fine;
}

void tellOfBaseline(const BaselineOutcome& outcome, Console& console) {
  console.message(counted(outcome.known, "finding") + " of the baseline left out.");
  if (outcome.gone.empty()) return;
  console.message(counted(outcome.gone.size(), "finding") + " of the baseline no longer " +
                  (outcome.gone.size() == 1 ? "occurs:" : "occur:"));
  const std::size_t told = console.showsLog() ? outcome.gone.size() : std::min(outcome.gone.size(), kMostGone);
  for (std::size_t at = 0; at < told; ++at) console.message("    " + printableLine(outcome.gone[at]));
  if (told < outcome.gone.size()) {
    console.message("    and " + std::to_string(outcome.gone.size() - told) + " more; --log lists them");
  }
}

ExitCode leaveOutKnown(ProjectSession& session, CheckReport& report, const FindingsOptions& options, bool allTables) {
  const Result<std::string> text = readText(session.files(), absoluteUrl(options.baseline));
  if (!text) return explainFile(session, "read", options.baseline, text.error().sentence);
  const Result<std::vector<BaselineLine>> lines = parseBaseline(text.value());
  if (!lines) return explainFile(session, "use", options.baseline, lines.error().sentence);
  applyBaseline(lines.value(), report);
  if (!allTables) report.baseline->gone.clear();
  return ExitCode::Fine;
}

std::string reportText(const CheckReport& report, const std::string& format, const Painter& painted) {
  if (format == "json") return jsonReport(report);
  if (format == "sarif") return sarifReport(report);
  if (format == "junit") return junitReport(report);
  if (format == "github") return githubReport(report);
  return textReport(report, painted);
}

ExitCode hand(ProjectSession& session, const CheckReport& report, const FindingsOptions& options) {
  Console& console = session.console();
  if (options.output.empty() || options.output == kToStandardOutput) {
    console.data(reportText(report, options.format,
                            [&console](Paint paint, std::string_view text) { return console.painted(paint, text); }));
    return ExitCode::Fine;
  }
  const auto plain = [](Paint, std::string_view text) { return std::string(text); };
  const ExitCode written = writeFile(session, options.output, reportText(report, options.format, plain));
  if (written == ExitCode::Fine) session.reportFiles();
  return written;
}

}  // namespace

ExitCode checkFindings(ProjectSession& session, const LanguageArray& languages, const std::vector<std::string>& tables,
                       const FindingsOptions& options) {
  CheckReport report = reportOf(session, languages, tables, options);
  if (!options.writeBaseline.empty()) return writeKnown(session, report, options.writeBaseline);
  if (!options.baseline.empty()) {
    const ExitCode read = leaveOutKnown(session, report, options, tables.empty());
    if (read != ExitCode::Fine) return read;
  }
  const ExitCode handed = hand(session, report, options);
  if (handed != ExitCode::Fine) return handed;
  if (report.baseline) tellOfBaseline(*report.baseline, session.console());
  return hasFailure(report) ? ExitCode::CheckFailed : ExitCode::Fine;
}

}  // namespace glossmill
