#pragma once

#include "model/ProjectOptions.h"
#include "platform/FileUrl.h"
#include "platform/UserDefaults.h"

namespace glossmill {

// By which rules the projects were read last whose own files do not say it. Main thread.

/// The classic ones where nobody chose any.
RuleSet rememberedRules(UserDefaults& defaults, const FileUrl& directory);
/// The choice of long ago is forgotten for this one.
void rememberRules(UserDefaults& defaults, const FileUrl& directory, RuleSet rules);

}  // namespace glossmill
