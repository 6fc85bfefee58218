#include "settings/ProjectSettings.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/ReadText.h"
#include "settings/KeyLine.h"
#include "xcode/Routine.h"

namespace glossmill {

namespace {

using SettingsJson = nlohmann::ordered_json;

constexpr std::string_view kFileName = kProjectSettingsFile;

Error mistake(std::size_t line, const std::string& what) {
  return Error{std::string(kFileName) + ", line " + std::to_string(line) + ": " + what};
}

std::size_t lineOfByte(std::string_view text, std::size_t byte) {
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(byte, text.size()));
  return 1 + static_cast<std::size_t>(std::count(text.begin(), end, '\n'));
}

Outcome takeText(const SettingsJson& value, std::string& text) {
  if (!value.is_string()) return Error{"takes a text"};
  text = value.get<std::string>();
  return Done{};
}

Outcome takeTexts(const SettingsJson& value, std::vector<std::string>& texts) {
  if (!value.is_array()) return Error{"takes a list of texts"};
  for (const SettingsJson& item : value) {
    const Outcome taken = takeText(item, texts.emplace_back());
    if (!taken) return Error{"takes a list of texts"};
    if (texts.back().empty()) return Error{"holds an empty text"};
  }
  return Done{};
}

Outcome takeRules(const SettingsJson& value, std::optional<RuleSet>& rules) {
  if (value == "classic") rules = RuleSet::Classic;
  if (value == "xcode") rules = RuleSet::Xcode;
  return rules ? Outcome(Done{}) : Error{"is either \"classic\" or \"xcode\""};
}

Outcome takeRoutines(const SettingsJson& value, std::vector<std::string>& routines) {
  const Outcome taken = takeTexts(value, routines);
  if (!taken) return taken;
  for (const std::string& routine : routines) {
    const Result<Routine> parsed = parseRoutine(routine);
    if (!parsed) return Error{"\"" + routine + "\": " + parsed.error().sentence};
  }
  return Done{};
}

Outcome takeMember(const std::string& key, const SettingsJson& value, ProjectSettings& settings) {
  if (key == "rules") return takeRules(value, settings.rules);
  if (key == "packages") return takeTexts(value, settings.packages);
  if (key == "exclude") return takeTexts(value, settings.exclude);
  if (key == "routines") return takeRoutines(value, settings.routines);
  if (key == "sourceLanguage") return takeText(value, settings.sourceLanguage);
  return Error{"is not known"};
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
  SettingsJson json;
  try {
    json = SettingsJson::parse(text);
  } catch (const SettingsJson::parse_error& problem) {
    return mistake(lineOfByte(text, problem.byte == 0 ? 0 : problem.byte - 1), "this is not correct JSON");
  }
  if (!json.is_object()) return mistake(1, "an object is expected, in braces");
  ProjectSettings settings;
  for (const auto& [key, value] : json.items()) {
    const Outcome taken = takeMember(key, value, settings);
    if (!taken) return mistake(lineOfKey(text, key), "\"" + key + "\" " + taken.error().sentence);
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
  return mistake(1, "the rules cannot be changed here; change them in the file");
}

std::string projectSettingsText(const ProjectSettings& settings) {
  SettingsJson json = SettingsJson::object();
  if (settings.rules) json["rules"] = *settings.rules == RuleSet::Xcode ? "xcode" : "classic";
  if (!settings.packages.empty()) json["packages"] = settings.packages;
  if (!settings.exclude.empty()) json["exclude"] = settings.exclude;
  if (!settings.routines.empty()) json["routines"] = settings.routines;
  if (!settings.sourceLanguage.empty()) json["sourceLanguage"] = settings.sourceLanguage;
  return json.dump(2, ' ', false, SettingsJson::error_handler_t::replace) + "\n";
}

Result<ProjectSettings> readProjectSettings(FileReading& files, const FileUrl& directory) {
  const FileUrl file = directory.appending(kFileName);
  if (!files.identityOf(file)) return ProjectSettings();
  const Result<std::string> text = readText(files, file);
  if (!text) return Error{"cannot read " + std::string(kFileName) + ": " + text.error().sentence};
  return parseProjectSettings(text.value());
}

}  // namespace glossmill
