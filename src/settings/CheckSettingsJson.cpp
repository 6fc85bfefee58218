#include "settings/CheckSettingsJson.h"

#include "checks/CheckList.h"

namespace glossmill {

namespace {

constexpr std::string_view kOff = "off";

MaybeMistake takeSeverity(const SettingsJson& value, const JsonWay& way, CheckSettings& settings) {
  const std::optional<Check> check = checkNamed(way.back());
  if (!check) return SettingsMistake{way, "is no check"};
  const std::string name = value.is_string() ? value.get<std::string>() : std::string();
  const std::optional<Severity> severity = severityNamed(name);
  if (!severity && name != kOff) return SettingsMistake{way, "is one of error, warning, info and off"};
  settings.severities[*check] = severity;
  return std::nullopt;
}

MaybeMistake takeSeverities(const SettingsJson& value, const JsonWay& way, CheckSettings& settings) {
  if (!value.is_object()) return SettingsMistake{way, "takes an object"};
  for (const auto& [key, severity] : value.items()) {
    if (MaybeMistake mistake = takeSeverity(severity, inside(way, key), settings)) return mistake;
  }
  return std::nullopt;
}

MaybeMistake takeIgnoredMember(const SettingsJson& value, const JsonWay& way, IgnoredFindings& ignored) {
  const std::string& key = way.back();
  if (key == "key") return takeText(value, way, ignored.key);
  if (key == "language") return takeText(value, way, ignored.language);
  if (key == "file") return takeText(value, way, ignored.file);
  if (key == "table") return takeText(value, way, ignored.table);
  if (key != "check") return SettingsMistake{way, "is not known"};
  std::string name;
  if (MaybeMistake mistake = takeText(value, way, name)) return mistake;
  ignored.check = checkNamed(name);
  return ignored.check ? MaybeMistake() : SettingsMistake{way, "names no check"};
}

MaybeMistake takeIgnored(const SettingsJson& value, const JsonWay& way, std::vector<IgnoredFindings>& ignored) {
  if (!value.is_array()) return SettingsMistake{way, "takes a list of objects"};
  for (std::size_t number = 0; number < value.size(); ++number) {
    const JsonWay item = inside(way, std::to_string(number));
    if (!value[number].is_object()) return SettingsMistake{item, "takes a list of objects"};
    if (value[number].empty()) return SettingsMistake{item, "holds an object that says nothing"};
    IgnoredFindings& one = ignored.emplace_back();
    for (const auto& [key, member] : value[number].items()) {
      if (MaybeMistake mistake = takeIgnoredMember(member, inside(item, key), one)) return mistake;
    }
  }
  return std::nullopt;
}

void add(SettingsJson& json, const char* key, const std::string& text) {
  if (!text.empty()) json[key] = text;
}

SettingsJson jsonOf(const IgnoredFindings& ignored) {
  SettingsJson json = SettingsJson::object();
  if (ignored.check) json["check"] = entryOf(*ignored.check).name;
  add(json, "key", ignored.key);
  add(json, "language", ignored.language);
  add(json, "file", ignored.file);
  add(json, "table", ignored.table);
  return json;
}

}  // namespace

MaybeMistake takeChecks(const SettingsJson& value, const JsonWay& way, CheckSettings& settings) {
  if (!value.is_object()) return SettingsMistake{way, "takes an object"};
  settings.areNamed = true;
  for (const auto& [key, member] : value.items()) {
    const JsonWay to = inside(way, key);
    MaybeMistake mistake = SettingsMistake{to, "is not known"};
    if (key == "severity") mistake = takeSeverities(member, to, settings);
    if (key == "ignore") mistake = takeIgnored(member, to, settings.ignored);
    if (key == "keep") mistake = takeTexts(member, to, settings.keep);
    if (mistake) return mistake;
  }
  return std::nullopt;
}

SettingsJson jsonOfChecks(const CheckSettings& settings) {
  SettingsJson json = SettingsJson::object();
  for (const auto& [check, severity] : settings.severities) {
    json["severity"][std::string(entryOf(check).name)] = severity ? nameOf(*severity) : kOff;
  }
  for (const IgnoredFindings& ignored : settings.ignored) json["ignore"].push_back(jsonOf(ignored));
  if (!settings.keep.empty()) json["keep"] = settings.keep;
  return json;
}

}  // namespace glossmill
