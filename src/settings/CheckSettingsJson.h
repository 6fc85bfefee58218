#pragma once

#include "checks/CheckSettings.h"
#include "settings/SettingsFile.h"

namespace glossmill {

/// What a settings file says of the checks: the value of its key "checks".
MaybeMistake takeChecks(const SettingsJson& value, const JsonWay& way, CheckSettings& settings);

/// The same the other way round.
SettingsJson jsonOfChecks(const CheckSettings& settings);

}  // namespace glossmill
