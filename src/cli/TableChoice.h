#pragma once

#include <string>
#include <vector>

#include "cli/ProjectSession.h"

namespace CLI {
class App;
}

namespace glossmill {

/// Adds --table, any number of times, for a command that works on strings.
void addTables(CLI::App& command, std::vector<std::string>& ids);

/// From here on the open project shows the strings of these tables only; of all for no ids. False, explained on the
/// console, where there is no such table.
bool keepTables(ProjectSession& session, const std::vector<std::string>& ids);

/// Gives a table that has no file and no directory yet the one of the id, and keeps it. False, without a word, where
/// the id means no such table.
bool placeTable(ProjectSession& session, const std::string& id);

}  // namespace glossmill
