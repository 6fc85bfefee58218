#include "cli/reports/JsonReport.h"

#include "checks/CheckList.h"
#include "cli/JsonWriter.h"

namespace glossmill {

namespace {

Json numberFrom1(std::uint32_t number) {
  return number == 0 ? Json() : Json(number);
}

Json textUnlessEmpty(const std::string& text) {
  return text.empty() ? Json() : Json(text);
}

Json textIfThere(const std::optional<std::string>& text) {
  return text ? Json(*text) : Json();
}

Json findingJson(const PlacedFinding& finding) {
  return {{"check", entryOf(finding.check).name},
          {"severity", nameOf(finding.severity)},
          {"sentence", finding.sentence},
          {"file", textUnlessEmpty(finding.file)},
          {"line", numberFrom1(finding.line)},
          {"column", numberFrom1(finding.column)},
          {"language", textUnlessEmpty(finding.language)},
          {"table", textUnlessEmpty(finding.table)},
          {"key", textUnlessEmpty(finding.key)},
          {"source", textIfThere(finding.source)},
          {"translation", textIfThere(finding.translation)},
          {"fingerprint", finding.fingerprint}};
}

Json countsJson(const CheckReport& report) {
  Json counts = Json::object();
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Info}) {
    counts[std::string(nameOf(severity))] = countOf(report, severity);
  }
  return counts;
}

Json baselineJson(const CheckReport& report) {
  if (!report.baseline) return {};
  return {{"known", report.baseline->known}, {"gone", report.baseline->gone}};
}

}  // namespace

std::string jsonReport(const CheckReport& report) {
  std::string text;
  JsonWriter writer([&text](std::string_view piece) { text += piece; });
  writer.member("failed", hasFailure(report));
  writer.member("failOn", nameOf(report.failsFrom));
  writer.member("languages", report.languages);
  writer.member("counts", countsJson(report));
  writer.member("baseline", baselineJson(report));
  writer.list("findings", report.findings.size(), [&](std::size_t at) { return findingJson(report.findings[at]); });
  writer.end();
  return text;
}

}  // namespace glossmill
