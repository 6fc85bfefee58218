#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/KeyLine.h"
#include "text/Result.h"

namespace glossmill {

using SettingsJson = nlohmann::ordered_json;

/// Something in a settings file that is not taken.
struct SettingsMistake {
  JsonWay way;       ///< to the key or the item that is at fault
  std::string what;  ///< what it should be, to be read behind its name
};
using MaybeMistake = std::optional<SettingsMistake>;

/// The object that the text of a file holds. An error is one sentence with file and line.
Result<SettingsJson> parseSettingsFile(std::string_view text, std::string_view fileName);

/// One sentence with file, line and key.
Error errorOf(const SettingsMistake& mistake, std::string_view text, std::string_view fileName);

MaybeMistake takeText(const SettingsJson& value, const JsonWay& way, std::string& text);
/// None of them empty.
MaybeMistake takeTexts(const SettingsJson& value, const JsonWay& way, std::vector<std::string>& texts);

/// The way to something inside.
JsonWay inside(JsonWay way, std::string key);

}  // namespace glossmill
