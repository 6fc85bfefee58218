#pragma once

namespace glossmill {

/// What a user allows although a save would be refused for it.
struct SaveAllowance {
  bool incomplete = false;  ///< something of the project could not be read
  bool outside = false;     ///< a file lies outside the project
  bool changed = false;     ///< a file was changed by somebody else since it was read
  bool noCopy = false;      ///< what is replaced cannot be kept
};

}  // namespace glossmill
