#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// The text of an interface file's object that Xcode's comment on its key tells: of the key `5.title`, the "Zoom" of
/// `Class = "NSMenuItem"; title = "Zoom"; ObjectID = "5";`. Nothing for another key or comment.
std::optional<std::string> interfaceText(std::string_view key, std::string_view comment);

}  // namespace glossmill
