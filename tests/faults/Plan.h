#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace faults {

/// The calls that can be made to fail. Calls that differ only in how the file is named are of one kind.
enum class Kind {
  Open,
  Opendir,
  Readdir,
  Read,
  Stat,
  Readlink,
  Write,
  Fsync,
  Rename,
  Mkdir,
  Unlink,
  Chmod,
  Xattr,
  Lock
};
inline constexpr std::size_t kKinds = 14;

std::string_view nameOf(Kind kind);

/// What happens instead of, or around, a call.
enum class Effect {
  None,
  Fail,        ///< it fails with Action::code and does nothing
  Short,       ///< read and write carry half of the bytes, and say so
  End,         ///< read says that the file ends here
  KillBefore,  ///< the process is killed in front of it
  KillAfter,   ///< or right behind it
  RunBefore,   ///< a shell command is run in front of it, as somebody else would
};

struct Action {
  Effect effect = Effect::None;
  int code = 0;  ///< errno
};

/// Counts a call below one of the directories of FAULTS_ROOT and says what FAULTS_PLAN wants of it. Any thread.
/// FAULTS_PLAN holds "KIND:N:EFFECT" joined by ";": KIND is a name of a kind or "any"; N is the number of the call,
/// from 1, with "+" behind it for all later ones too; EFFECT is the name of an error such as EIO, or "short", "end",
/// "kill-before", "kill-after", "run". FAULTS_TRACE names a file to which each counted call is appended.
Action actionFor(Kind kind, const std::string& path);

/// Runs the command of FAULTS_COMMAND, without the faults, and waits for it.
void runCommand();

}  // namespace faults
