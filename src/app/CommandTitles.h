#pragma once

#include <string>

#include "app/Commands.h"
#include "platform/Bundle.h"

namespace glossmill {

/// What the menu calls the command at the moment, in the user's language and with a mnemonic: "&Undo Import of German"
/// where it depends on what there is to do, else the title of the table.
std::string commandTitle(const AppDelegate& application, const Command& command, const Bundle& bundle);

}  // namespace glossmill
