#pragma once

namespace glossmill {

/// From now on the first Ctrl+C is only remembered, for interrupted() to tell; the second one ends the process. A
/// process that was started to ignore Ctrl+C goes on ignoring it.
void catchInterrupt();

bool interrupted();

}  // namespace glossmill
