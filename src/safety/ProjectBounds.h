#pragma once

#include "platform/SaveDisk.h"

namespace glossmill {

/// An error of kind Outside when the links of a path lead out of the project; it says where they lead. What does not
/// exist yet lies where it would be made.
Outcome checkInside(SaveDisk& disk, const FileUrl& project, const FileUrl& url);

}  // namespace glossmill
