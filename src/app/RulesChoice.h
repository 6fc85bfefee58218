#pragma once

#include <functional>

#include "platform/Host.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// Makes a choice outlive the run; an error is one whole sentence.
using RulesKeeper = std::function<Outcome(const ProjectWindowController& project, RuleSet rules)>;

/// Reads the open project anew by these rules, and from now on, once the user has settled what is not saved. Nothing
/// happens when they are its rules already, when the user wants to stay, or when the choice cannot be kept, which an
/// alert tells. Main thread.
void chooseRules(const Host& host, ProjectWindowController& project, RuleSet rules, const RulesKeeper& keeper);

}  // namespace glossmill
