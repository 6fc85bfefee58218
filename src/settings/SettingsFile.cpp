#include "settings/SettingsFile.h"

#include <algorithm>
#include <utility>

namespace glossmill {

namespace {

Error errorAt(std::string_view fileName, std::size_t line, const std::string& what) {
  return Error{std::string(fileName) + ", line " + std::to_string(line) + ": " + what};
}

std::size_t lineOfByte(std::string_view text, std::size_t byte) {
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(byte, text.size()));
  return 1 + static_cast<std::size_t>(std::count(text.begin(), end, '\n'));
}

bool isNumber(const std::string& key) {
  return !key.empty() && key.find_first_not_of("0123456789") == key.npos;
}

/// The last key of a way, and in what it stands.
std::string nameOf(JsonWay way) {
  std::erase_if(way, isNumber);
  std::string name;
  for (auto key = way.rbegin(); key != way.rend(); ++key) {
    name += (name.empty() ? "\"" : " in \"") + *key + "\"";
  }
  return name;
}

}  // namespace

Result<SettingsJson> parseSettingsFile(std::string_view text, std::string_view fileName) {
  try {
    SettingsJson json = SettingsJson::parse(text);
    if (!json.is_object()) return errorAt(fileName, 1, "an object is expected, in braces");
    return json;
  } catch (const SettingsJson::parse_error& problem) {
    return errorAt(fileName, lineOfByte(text, problem.byte == 0 ? 0 : problem.byte - 1), "this is not correct JSON");
  }
}

Error errorOf(const SettingsMistake& mistake, std::string_view text, std::string_view fileName) {
  return errorAt(fileName, lineOfKey(text, mistake.way), nameOf(mistake.way) + " " + mistake.what);
}

MaybeMistake takeText(const SettingsJson& value, const JsonWay& way, std::string& text) {
  if (!value.is_string()) return SettingsMistake{way, "takes a text"};
  text = value.get<std::string>();
  return std::nullopt;
}

MaybeMistake takeTexts(const SettingsJson& value, const JsonWay& way, std::vector<std::string>& texts) {
  if (!value.is_array()) return SettingsMistake{way, "takes a list of texts"};
  for (const SettingsJson& item : value) {
    if (!item.is_string()) return SettingsMistake{way, "takes a list of texts"};
    texts.push_back(item.get<std::string>());
    if (texts.back().empty()) return SettingsMistake{way, "holds an empty text"};
  }
  return std::nullopt;
}

JsonWay inside(JsonWay way, std::string key) {
  way.push_back(std::move(key));
  return way;
}

}  // namespace glossmill
