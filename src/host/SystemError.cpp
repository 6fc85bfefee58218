#include "host/SystemError.h"

#include <cerrno>
#include <string>
#include <system_error>

namespace glossmill {

namespace {

/// What is wrong whatever was asked for; empty for any other code.
std::string_view generalReason(int code) {
  switch (code) {
    case ENOTDIR:
      return "A part of the path is not a directory.";
    case ELOOP:
      return "The links in the path lead round in a circle.";
    case ENAMETOOLONG:
      return "The name is too long.";
    case ENOSPC:
      return "There is no space left on the disk.";
    case EDQUOT:
      return "Your quota of the disk is used up.";
    case EFBIG:
      return "The file would be larger than the system allows.";
    case EROFS:
      return "The disk can only be read.";
    case EIO:
      return "The disk reports an input/output error.";
    case EMFILE:
    case ENFILE:
      return "Too many files are open.";
    default:
      return {};
  }
}

}  // namespace

Error systemError(int code, std::string_view thing) {
  const std::string name(thing);
  switch (code) {
    case ENOENT:
      return {"The " + name + " does not exist."};
    case EACCES:
    case EPERM:
      return {"You do not have permission to access the " + name + "."};
    case EEXIST:
      return {"There is already something with the name of the " + name + "."};
    case EISDIR:
      return {"It is a directory, not a file."};
    default:
      break;
  }
  const std::string_view reason = generalReason(code);
  if (!reason.empty()) return {std::string(reason)};
  return {"The system reports: " + std::generic_category().message(code) + "."};
}

Error notARegularFile() {
  return {"It is not a regular file."};
}

}  // namespace glossmill
