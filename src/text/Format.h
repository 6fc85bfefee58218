#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "text/Utf16.h"

namespace glossmill {

/// One value for a format: a text for "%@", which prints "(null)" when there is none, or a number for "%ld".
class FormatArgument {
 public:
  using NumberText = std::array<char, 20>;  ///< long enough for every number

  FormatArgument(std::string_view text) : m_value(text) {}
  FormatArgument(const std::string& text) : m_value(std::string_view(text)) {}
  FormatArgument(const char* text) : m_value(std::string_view(text)) {}
  FormatArgument(const std::optional<std::string>& text) {
    if (text) m_value = std::string_view(*text);
  }
  FormatArgument(std::int64_t number) : m_value(number) {}

  /// The value as text; a number is written into `number`.
  std::string_view text(NumberText& number) const;

 private:
  std::variant<std::monostate, std::string_view, std::int64_t> m_value;
};

inline constexpr std::size_t kWholeArguments = std::string_view::npos;

/// The length of the place for an argument that `format` begins with, 0 when it begins with none.
inline std::size_t formatPlaceLength(std::string_view format) {
  return format.starts_with("%@") ? 2 : format.starts_with("%ld") ? 3 : 0;
}

/// Fills the "%@" and "%ld" of `format` with the arguments in their order and adds the result to `text`; "%%" gives one
/// percent sign. A place without an argument and any other percent sign stay as they are, surplus arguments are
/// ignored. Arguments longer than `mostUnits` UTF-16 units are clipped.
template <typename Text>
void appendFormatted(Text& text, std::string_view format, std::initializer_list<FormatArgument> arguments,
                     std::size_t mostUnits) {
  const FormatArgument* next = arguments.begin();
  FormatArgument::NumberText number;
  while (!format.empty()) {
    const std::size_t plain = std::min(format.find('%'), format.size());
    text.append(format.substr(0, plain));
    format.remove_prefix(plain);
    if (format.empty()) break;
    const std::size_t placeLength = formatPlaceLength(format);
    if (placeLength != 0 && next != arguments.end()) {
      const std::string_view whole = next->text(number);
      // A text has no more units than bytes.
      if (whole.size() <= mostUnits) text.append(whole);
      if (whole.size() > mostUnits) text.append(clipUtf16(whole, mostUnits));
      ++next;
      format.remove_prefix(placeLength);
      continue;
    }
    text.append(std::string_view("%"));
    format.remove_prefix(format.starts_with("%%") ? 2 : 1);
  }
}

/// The same as a text of its own.
std::string formatText(std::string_view format, std::initializer_list<FormatArgument> arguments);

}  // namespace glossmill
