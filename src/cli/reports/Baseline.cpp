#include "cli/reports/Baseline.h"

#include <algorithm>
#include <unordered_set>

#include "checks/CheckList.h"
#include "cli/JsonWriter.h"
#include "text/PercentForm.h"
#include "text/Split.h"

namespace glossmill {

namespace {

constexpr std::string_view kHeading =
    "# Findings that are known: glossmill-cli check --baseline tells of all others. Written by --write-baseline.\n";
constexpr std::string_view kNoLanguage = "-";
constexpr std::size_t kFingerprintLength = 16;
constexpr std::string_view kHexadecimal = "0123456789abcdef";

/// "missing de de.lproj/Localizable.strings "Anchor" 0123456789abcdef"
std::string lineOf(const PlacedFinding& finding) {
  std::string line(entryOf(finding.check).name);
  line += " " + (finding.language.empty() ? std::string(kNoLanguage) : percentForm(finding.language));
  line += " " + percentForm(finding.file);
  return line + " " + compactJson(finding.key) + " " + finding.fingerprint + "\n";
}

std::optional<BaselineLine> parseLine(std::string_view line) {
  const std::size_t first = line.find(' ');
  const std::size_t second = line.find(' ', first + 1);
  const std::size_t last = line.rfind(' ');
  if (first == std::string_view::npos || second == std::string_view::npos || last <= second) return std::nullopt;
  BaselineLine parsed{line.substr(0, first), line.substr(first + 1, second - first - 1), line.substr(last + 1), line};
  if (parsed.language == kNoLanguage) parsed.language = {};
  const bool isHexadecimal = parsed.fingerprint.find_first_not_of(kHexadecimal) == std::string_view::npos;
  if (!isHexadecimal || parsed.fingerprint.size() != kFingerprintLength) return std::nullopt;
  return parsed;
}

bool wasLookedFor(const CheckReport& report, const BaselineLine& line) {
  const std::optional<Check> check = checkNamed(line.check);
  if (!check || std::ranges::find(report.checks, *check) == report.checks.end()) return false;
  return line.language.empty() || std::ranges::any_of(report.languages, [&line](const std::string& language) {
           return percentForm(language) == line.language;
         });
}

}  // namespace

std::string baselineText(const std::vector<PlacedFinding>& findings) {
  std::vector<std::string> lines;
  lines.reserve(findings.size());
  for (const PlacedFinding& finding : findings) lines.push_back(lineOf(finding));
  std::ranges::sort(lines);
  std::string text(kHeading);
  for (const std::string& line : lines) text += line;
  return text;
}

Result<std::vector<BaselineLine>> parseBaseline(std::string_view text) {
  std::vector<BaselineLine> lines;
  std::size_t number = 0;
  for (std::string_view line : split(text, '\n')) {
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.starts_with('#')) continue;
    const std::optional<BaselineLine> parsed = parseLine(line);
    if (!parsed) return Error{"line " + std::to_string(number) + " is no line that --write-baseline writes"};
    lines.push_back(*parsed);
  }
  return lines;
}

void applyBaseline(const std::vector<BaselineLine>& baseline, CheckReport& report) {
  std::unordered_set<std::string_view> known;
  for (const BaselineLine& line : baseline) known.insert(line.fingerprint);
  std::unordered_set<std::string> met;
  BaselineOutcome outcome;
  outcome.known = std::erase_if(report.findings, [&](const PlacedFinding& finding) {
    if (!known.contains(finding.fingerprint)) return false;
    met.insert(finding.fingerprint);
    return true;
  });
  for (const BaselineLine& line : baseline) {
    if (wasLookedFor(report, line) && !met.contains(std::string(line.fingerprint))) {
      outcome.gone.emplace_back(line.whole);
    }
  }
  report.baseline = std::move(outcome);
}

}  // namespace glossmill
