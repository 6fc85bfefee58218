#pragma once

namespace glossmill {

/// What the process tells its caller.
enum class ExitCode {
  Fine = 0,
  CheckFailed = 1,
  WrongUsage = 2,
  Unusable = 3,       ///< the directory or a file named on the command line cannot be used
  Interrupted = 130,  ///< as a shell reports a program that was ended by Ctrl+C
};

}  // namespace glossmill
