#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// Paths as project files have them: from the package's directory, without "." and, but in front, without ".."; the
/// directory itself is "". An absolute path begins with a slash.

/// `path` seen from `base`; an absolute `path` stands alone. Nothing for one that no disk takes (1024 bytes and more).
std::optional<std::string> joinedPath(std::string_view base, std::string_view path);

}  // namespace glossmill
