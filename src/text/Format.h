#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace glossmill {

/// One value for a format: a text for "%@", which prints "(null)" when there is none, or a number for "%ld".
class FormatArgument {
 public:
  FormatArgument(std::string_view text) : m_value(text) {}
  FormatArgument(const std::string& text) : m_value(std::string_view(text)) {}
  FormatArgument(const char* text) : m_value(std::string_view(text)) {}
  FormatArgument(const std::optional<std::string>& text) {
    if (text) m_value = std::string_view(*text);
  }
  FormatArgument(std::int64_t number) : m_value(number) {}

  void appendTo(std::string& text) const;

 private:
  std::variant<std::monostate, std::string_view, std::int64_t> m_value;
};

/// Fills the "%@" and "%ld" of `format` with the arguments in their order; "%%" gives one percent sign. A place without
/// an argument and any other percent sign stay as they are, surplus arguments are ignored.
std::string formatText(std::string_view format, std::initializer_list<FormatArgument> arguments);

}  // namespace glossmill
