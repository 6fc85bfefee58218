#include "text/Format.h"

#include <algorithm>

namespace glossmill {

void FormatArgument::appendTo(std::string& text) const {
  if (const auto* string = std::get_if<std::string_view>(&m_value)) {
    text.append(*string);
  } else if (const auto* number = std::get_if<std::int64_t>(&m_value)) {
    text.append(std::to_string(*number));
  } else {
    text.append("(null)");
  }
}

std::string formatText(std::string_view format, std::initializer_list<FormatArgument> arguments) {
  std::string text;
  const FormatArgument* next = arguments.begin();
  while (!format.empty()) {
    const std::size_t plain = std::min(format.find('%'), format.size());
    text.append(format.substr(0, plain));
    format.remove_prefix(plain);
    if (format.empty()) break;

    const std::size_t placeLength = format.starts_with("%@") ? 2 : format.starts_with("%ld") ? 3 : 0;
    if (placeLength != 0 && next != arguments.end()) {
      next->appendTo(text);
      ++next;
      format.remove_prefix(placeLength);
      continue;
    }
    text.push_back('%');
    format.remove_prefix(format.starts_with("%%") ? 2 : 1);
  }
  return text;
}

}  // namespace glossmill
