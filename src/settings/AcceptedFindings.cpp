#include "settings/AcceptedFindings.h"

#include <algorithm>
#include <tuple>

#include "checks/CheckList.h"
#include "platform/ReadText.h"
#include "settings/SettingsFile.h"

namespace glossmill {

namespace {

constexpr const char* kList = "accepted";

MaybeMistake takeMaybeText(const SettingsJson& value, const JsonWay& way, std::optional<std::string>& text) {
  if (value.is_null()) return std::nullopt;
  return takeText(value, way, text.emplace());
}

MaybeMistake takeCheck(const SettingsJson& value, const JsonWay& way, std::optional<Check>& check) {
  std::string name;
  if (MaybeMistake mistake = takeText(value, way, name)) return mistake;
  check = checkNamed(name);
  return check ? MaybeMistake() : SettingsMistake{way, "names no check"};
}

MaybeMistake takeMember(const SettingsJson& value, const JsonWay& way, Acceptance& acceptance,
                        std::optional<Check>& check) {
  const std::string& key = way.back();
  if (key == "table") return takeText(value, way, acceptance.table);
  if (key == "key") return takeText(value, way, acceptance.key);
  if (key == "language") return takeText(value, way, acceptance.language);
  if (key == "check") return takeCheck(value, way, check);
  if (key == "source") return takeMaybeText(value, way, acceptance.source);
  if (key == "translation") return takeMaybeText(value, way, acceptance.translation);
  return SettingsMistake{way, "is not known"};
}

MaybeMistake takeAcceptance(const SettingsJson& value, const JsonWay& way, std::vector<Acceptance>& acceptances) {
  if (!value.is_object()) return SettingsMistake{way, "takes a list of objects"};
  Acceptance acceptance;
  std::optional<Check> check;
  for (const auto& [key, member] : value.items()) {
    if (MaybeMistake mistake = takeMember(member, inside(way, key), acceptance, check)) return mistake;
  }
  if (!check) return SettingsMistake{way, "holds an object without a check"};
  acceptance.check = *check;
  acceptances.push_back(std::move(acceptance));
  return std::nullopt;
}

MaybeMistake takeAll(const SettingsJson& json, std::vector<Acceptance>& acceptances) {
  for (const auto& [key, value] : json.items()) {
    if (key != kList) return SettingsMistake{{key}, "is not known"};
    if (!value.is_array()) return SettingsMistake{{key}, "takes a list of objects"};
    for (std::size_t number = 0; number < value.size(); ++number) {
      const JsonWay way{key, std::to_string(number)};
      if (MaybeMistake mistake = takeAcceptance(value[number], way, acceptances)) return mistake;
    }
  }
  return std::nullopt;
}

SettingsJson jsonOf(const std::optional<std::string>& text) {
  return text ? SettingsJson(*text) : SettingsJson();
}

SettingsJson jsonOf(const Acceptance& acceptance) {
  SettingsJson json = SettingsJson::object();
  json["check"] = entryOf(acceptance.check).name;
  if (!acceptance.table.empty()) json["table"] = acceptance.table;
  json["key"] = acceptance.key;
  json["language"] = acceptance.language;
  json["source"] = jsonOf(acceptance.source);
  json["translation"] = jsonOf(acceptance.translation);
  return json;
}

bool areOfOne(const Acceptance& one, const Acceptance& other) {
  return std::tie(one.check, one.table, one.key, one.language) ==
         std::tie(other.check, other.table, other.key, other.language);
}

}  // namespace

Result<std::vector<Acceptance>> parseAcceptances(std::string_view text) {
  const Result<SettingsJson> json = parseSettingsFile(text, kAcceptedFindingsFile);
  if (!json) return json.error();
  std::vector<Acceptance> acceptances;
  const MaybeMistake mistake = takeAll(json.value(), acceptances);
  if (mistake) return errorOf(*mistake, text, kAcceptedFindingsFile);
  return acceptances;
}

std::string acceptancesText(std::vector<Acceptance> acceptances) {
  std::sort(acceptances.begin(), acceptances.end());
  acceptances.erase(std::unique(acceptances.begin(), acceptances.end()), acceptances.end());
  SettingsJson json = SettingsJson::object();
  json[kList] = SettingsJson::array();
  for (const Acceptance& acceptance : acceptances) json[kList].push_back(jsonOf(acceptance));
  return json.dump(2, ' ', false, SettingsJson::error_handler_t::replace) + "\n";
}

Result<std::vector<Acceptance>> readAcceptances(FileReading& files, const FileUrl& directory) {
  const FileUrl file = directory.appending(kAcceptedFindingsFile);
  if (!files.identityOf(file)) return std::vector<Acceptance>();
  const Result<std::string> text = readText(files, file);
  if (!text) return Error{"cannot read " + std::string(kAcceptedFindingsFile) + ": " + text.error().sentence};
  return parseAcceptances(text.value());
}

AcceptanceChange reversed(const AcceptanceChange& change) {
  return {change.remove, change.add};
}

std::vector<Acceptance> changedAcceptances(std::vector<Acceptance> acceptances, const AcceptanceChange& change) {
  std::erase_if(acceptances, [&change](const Acceptance& acceptance) {
    const auto isOfOne = [&acceptance](const Acceptance& added) { return areOfOne(acceptance, added); };
    const bool isReplaced = std::any_of(change.add.begin(), change.add.end(), isOfOne);
    return isReplaced || std::find(change.remove.begin(), change.remove.end(), acceptance) != change.remove.end();
  });
  acceptances.insert(acceptances.end(), change.add.begin(), change.add.end());
  return acceptances;
}

Result<std::vector<Acceptance>> changeAcceptances(Files& files, const FileUrl& directory,
                                                  const AcceptanceChange& change) {
  const Result<std::vector<Acceptance>> before = readAcceptances(files, directory);
  if (!before) return before.error();
  std::vector<Acceptance> after = changedAcceptances(before.value(), change);
  const Outcome written = files.writeText(directory.appending(kAcceptedFindingsFile), acceptancesText(after));
  if (!written) return Error{"cannot write " + std::string(kAcceptedFindingsFile) + ": " + written.error().sentence};
  return after;
}

}  // namespace glossmill
