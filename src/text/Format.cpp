#include "text/Format.h"

#include <charconv>

namespace glossmill {

std::string_view FormatArgument::text(NumberText& number) const {
  if (const auto* string = std::get_if<std::string_view>(&m_value)) return *string;
  const auto* value = std::get_if<std::int64_t>(&m_value);
  if (!value) return "(null)";
  const char* const end = std::to_chars(number.data(), number.data() + number.size(), *value).ptr;
  return {number.data(), static_cast<std::size_t>(end - number.data())};
}

std::string formatText(std::string_view format, std::initializer_list<FormatArgument> arguments) {
  std::string text;
  appendFormatted(text, format, arguments, kWholeArguments);
  return text;
}

}  // namespace glossmill
