#pragma once

#include "app/Commands.h"

namespace glossmill {

// The commands of the Edit menu, carried out by whatever widget has the keyboard: a text, or the cell of a table, which
// can be copied.

bool canEdit(CommandId command);
void edit(CommandId command);

/// Whether the keyboard is in a field of one line, such as the one to search with.
bool isSingleLineFocused();

}  // namespace glossmill
