#include "cli/reports/SarifReport.h"

#include "checks/CheckList.h"
#include "cli/JsonWriter.h"
#include "text/PercentForm.h"

namespace glossmill {

namespace {

constexpr std::string_view kSchema =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";
constexpr std::string_view kRoot = "%SRCROOT%";
/// A later way to make fingerprints gets another number.
constexpr std::string_view kFingerprintName = "glossmill/v1";

std::string_view levelOf(Severity severity) {
  if (severity == Severity::Info) return "note";
  return nameOf(severity);
}

Json messageJson(std::string text) {
  return {{"text", std::move(text)}};
}

Json ruleJson(const CheckEntry& entry) {
  return {{"id", entry.name},
          {"shortDescription", messageJson(std::string(entry.sentence))},
          {"help", messageJson("For example: " + std::string(entry.example))},
          {"defaultConfiguration", {{"level", levelOf(entry.severity)}}}};
}

Json rulesJson() {
  Json rules = Json::array();
  for (const CheckEntry& entry : checkList()) rules.push_back(ruleJson(entry));
  return rules;
}

/// In front of a first part with a colon "./" keeps it from being taken for a scheme.
std::string relativeUri(std::string_view path) {
  const std::string uri = percentForm(path);
  const bool looksLikeScheme = uri.substr(0, uri.find('/')).find(':') != std::string::npos;
  return looksLikeScheme ? "./" + uri : uri;
}

Json artifactJson(const CheckReport& report, const PlacedFinding& finding) {
  const std::string path = reportedPath(report, finding);
  if (path.starts_with('/')) return {{"uri", FileUrl(path).text()}};
  return {{"uri", relativeUri(path)}, {"uriBaseId", kRoot}};
}

Json locationJson(const CheckReport& report, const PlacedFinding& finding) {
  Json physical = {{"artifactLocation", artifactJson(report, finding)}};
  if (finding.line != 0) {
    Json region = {{"startLine", finding.line}};
    if (finding.column != 0) region["startColumn"] = finding.column;
    physical["region"] = std::move(region);
  }
  return {{"physicalLocation", std::move(physical)}};
}

Json propertiesJson(const PlacedFinding& finding) {
  Json properties = Json::object();
  const auto add = [&properties](const char* name, const std::string& text) {
    if (!text.empty()) properties[name] = text;
  };
  add("language", finding.language);
  add("table", finding.table);
  add("key", finding.key);
  return properties;
}

Json resultJson(const CheckReport& report, const PlacedFinding& finding) {
  return {{"ruleId", entryOf(finding.check).name},
          {"ruleIndex", static_cast<std::size_t>(finding.check)},
          {"level", levelOf(finding.severity)},
          {"message", messageJson(plainText(finding))},
          {"locations", Json::array({locationJson(report, finding)})},
          {"partialFingerprints", {{kFingerprintName, finding.fingerprint}}},
          {"properties", propertiesJson(finding)}};
}

Json resultsJson(const CheckReport& report) {
  Json results = Json::array();
  for (const PlacedFinding& finding : report.findings) results.push_back(resultJson(report, finding));
  return results;
}

Json runJson(const CheckReport& report) {
  const Json driver = {{"name", "glossmill-cli"}, {"semanticVersion", GLOSSMILL_VERSION}, {"rules", rulesJson()}};
  return {{"tool", {{"driver", driver}}},
          {"columnKind", "utf16CodeUnits"},
          {"originalUriBaseIds", {{kRoot, {{"uri", report.root.text() + "/"}}}}},
          {"results", resultsJson(report)}};
}

}  // namespace

std::string sarifReport(const CheckReport& report) {
  return prettyJson({{"$schema", kSchema}, {"version", "2.1.0"}, {"runs", Json::array({runJson(report)})}});
}

}  // namespace glossmill
