#include "host/ExtendedAttributes.h"

#if defined(__linux__)
#include <sys/xattr.h>

#include <cerrno>
#include <optional>
#include <string_view>
#include <vector>

#include "host/SystemError.h"
#endif

namespace glossmill {

#if defined(__linux__)

namespace {

/// Asks with a growing buffer; nothing where the file system has no such thing.
template <typename Ask>
Result<std::optional<std::vector<char>>> asked(const Ask& ask) {
  std::vector<char> buffer(256);
  while (true) {
    const ssize_t length = ask(buffer.data(), buffer.size());
    if (length >= 0) {
      buffer.resize(static_cast<std::size_t>(length));
      return std::optional(std::move(buffer));
    }
    if (errno == ENOTSUP || errno == ENODATA) return std::optional<std::vector<char>>();
    if (errno != ERANGE) return systemError(errno);
    buffer.resize(buffer.size() * 4);
  }
}

bool mayBeRefused(std::string_view name, int code) {
  if (name.starts_with("user.") || name.starts_with("system.posix_acl")) return false;
  return code == EPERM || code == ENOTSUP || code == EACCES;
}

Outcome copyAttribute(const std::string& from, int to, const char* name) {
  const auto value = asked([&](char* buffer, std::size_t size) { return lgetxattr(from.c_str(), name, buffer, size); });
  if (!value) return value.error();
  if (!value.value()) return Done{};
  const std::vector<char>& bytes = *value.value();
  if (fsetxattr(to, name, bytes.data(), bytes.size(), 0) == 0 || mayBeRefused(name, errno)) return Done{};
  return systemError(errno);
}

}  // namespace

Outcome copyExtendedAttributes(const std::string& from, int to) {
  const auto names = asked([&](char* buffer, std::size_t size) { return llistxattr(from.c_str(), buffer, size); });
  if (!names) return names.error();
  if (!names.value()) return Done{};
  const std::string_view all(names.value()->data(), names.value()->size());
  for (std::size_t at = 0; at < all.size(); at = all.find('\0', at) + 1) {
    const Outcome copied = copyAttribute(from, to, all.data() + at);
    if (!copied) return copied;
  }
  return Done{};
}

#else

Outcome copyExtendedAttributes(const std::string&, int) {
  return Done{};
}

#endif

}  // namespace glossmill
