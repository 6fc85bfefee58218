#include "settings/ProjectSettings.h"

#include "platform/ReadText.h"
#include "settings/CheckSettingsJson.h"
#include "settings/SettingsFile.h"
#include "xcode/Routine.h"

namespace glossmill {

namespace {

MaybeMistake takeRules(const SettingsJson& value, const JsonWay& way, std::optional<RuleSet>& rules) {
  if (value == "classic") rules = RuleSet::Classic;
  if (value == "xcode") rules = RuleSet::Xcode;
  return rules ? MaybeMistake() : SettingsMistake{way, "is either \"classic\" or \"xcode\""};
}

MaybeMistake takeRoutines(const SettingsJson& value, const JsonWay& way, std::vector<std::string>& routines) {
  if (MaybeMistake mistake = takeTexts(value, way, routines)) return mistake;
  for (const std::string& routine : routines) {
    const Result<Routine> parsed = parseRoutine(routine);
    if (!parsed) return SettingsMistake{way, "\"" + routine + "\": " + parsed.error().sentence};
  }
  return std::nullopt;
}

MaybeMistake takeMember(const SettingsJson& value, const JsonWay& way, ProjectSettings& settings) {
  const std::string& key = way.back();
  if (key == "rules") return takeRules(value, way, settings.rules);
  if (key == "packages") return takeTexts(value, way, settings.packages);
  if (key == "exclude") return takeTexts(value, way, settings.exclude);
  if (key == "routines") return takeRoutines(value, way, settings.routines);
  if (key == "sourceLanguage") return takeText(value, way, settings.sourceLanguage);
  if (key == "checks") return takeChecks(value, way, settings.checks);
  return SettingsMistake{way, "is not known"};
}

/// As the first member, set off as the one that was the first.
void insertRules(std::string& text, const std::string& value) {
  const std::size_t inside = text.find('{') + 1;
  const std::size_t first = text.find_first_not_of(" \t\r\n", inside);
  const std::string blank = text.substr(inside, first - inside);
  const std::string member = "\"rules\": " + value;
  if (text[first] == '}') {
    text.insert(inside, member);
  } else {
    text.insert(first, member + "," + (blank.empty() ? " " : blank));
  }
}

}  // namespace

Result<ProjectSettings> parseProjectSettings(std::string_view text) {
  const Result<SettingsJson> json = parseSettingsFile(text, kProjectSettingsFile);
  if (!json) return json.error();
  ProjectSettings settings;
  for (const auto& [key, value] : json.value().items()) {
    const MaybeMistake mistake = takeMember(value, {key}, settings);
    if (mistake) return errorOf(*mistake, text, kProjectSettingsFile);
  }
  return settings;
}

Result<std::string> settingsTextWithRules(std::string_view text, RuleSet rules) {
  const Result<ProjectSettings> before = parseProjectSettings(text);
  if (!before) return before.error();
  std::string changed(text);
  const std::string value = rules == RuleSet::Xcode ? "\"xcode\"" : "\"classic\"";
  if (const std::optional<ScalarPlace> place = scalarOfKey(text, "rules")) {
    changed.replace(place->start, place->length, value);
  } else {
    insertRules(changed, value);
  }
  ProjectSettings wanted = before.value();
  wanted.rules = rules;
  const Result<ProjectSettings> after = parseProjectSettings(changed);
  if (after && after.value() == wanted) return changed;
  return Error{std::string(kProjectSettingsFile) +
               ", line 1: the rules cannot be changed here; change them in the file"};
}

std::string projectSettingsText(const ProjectSettings& settings) {
  SettingsJson json = SettingsJson::object();
  if (settings.rules) json["rules"] = *settings.rules == RuleSet::Xcode ? "xcode" : "classic";
  if (!settings.packages.empty()) json["packages"] = settings.packages;
  if (!settings.exclude.empty()) json["exclude"] = settings.exclude;
  if (!settings.routines.empty()) json["routines"] = settings.routines;
  if (!settings.sourceLanguage.empty()) json["sourceLanguage"] = settings.sourceLanguage;
  if (settings.checks.areNamed) json["checks"] = jsonOfChecks(settings.checks);
  return json.dump(2, ' ', false, SettingsJson::error_handler_t::replace) + "\n";
}

Result<ProjectSettings> readProjectSettings(FileReading& files, const FileUrl& directory) {
  const FileUrl file = directory.appending(kProjectSettingsFile);
  if (!files.identityOf(file)) return ProjectSettings();
  const Result<std::string> text = readText(files, file);
  if (!text) return Error{"cannot read " + std::string(kProjectSettingsFile) + ": " + text.error().sentence};
  return parseProjectSettings(text.value());
}

}  // namespace glossmill
