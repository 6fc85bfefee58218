#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Utf16Text.h"

namespace glossmill {

/// The rules of the source scanner written down as plainly as possible, UTF-16 unit by unit and each step on a copy of
/// what is left, as a measure for the quick one.
class ReferenceSourceScanner {
 public:
  struct String {
    std::string name;
    std::string comment;
    bool operator==(const String&) const = default;
  };

  explicit ReferenceSourceScanner(std::string_view text) { stringsFromFile(toUtf16(text)); }

  std::vector<String> strings;
  std::vector<std::string> badCalls;

 private:
  using Text = std::u16string;
  using MaybeText = std::optional<Text>;

  void stringsFromFile(const Text& text) {
    const Text lowered = lowerCase(text);
    std::size_t match = lowered.find(u"nslocalizedstring");
    while (match != Text::npos) {
      const MaybeText arguments = localizedStringContent(text.substr(match));
      const std::optional<String> string = arguments ? localizeStringFromString(*arguments) : std::nullopt;
      if (string) {
        strings.push_back(*string);
      } else {
        badCalls.push_back(toUtf8(text.substr(match, 80)));
      }
      match = lowered.find(u"nslocalizedstring", match + 1);
    }
  }

  static Text lowerCase(Text text) {
    for (char16_t& unit : text) {
      if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit - u'A' + u'a');
    }
    return text;
  }

  static MaybeText localizedStringContent(const Text& text) {
    const MaybeText rest = fromFirst(text, u'(');
    if (!rest) return std::nullopt;
    int depth = 0;
    for (std::size_t i = 0; i < rest->size(); ++i) {
      if ((*rest)[i] == u'(') ++depth;
      if ((*rest)[i] == u')' && --depth == 0) return rest->substr(0, i + 1);
    }
    return std::nullopt;
  }

  static std::optional<String> localizeStringFromString(Text text) {
    const MaybeText name = takeLiteral(text);
    if (!name) return std::nullopt;
    const MaybeText fromComma = fromFirst(text, u',');
    if (!fromComma) return std::nullopt;
    text = fromComma->substr(1);
    const MaybeText comment = takeLiteral(text);
    if (!comment) return std::nullopt;
    return String{toUtf8(*name), toUtf8(*comment)};
  }

  /// The first @-literal; what stands behind its closing quote is left in `text`.
  static MaybeText takeLiteral(Text& text) {
    const MaybeText fromAt = fromFirst(text, u'@');
    if (!fromAt) return std::nullopt;
    const MaybeText fromQuote = fromFirst(*fromAt, u'"');
    if (!fromQuote) return std::nullopt;
    const Text open = fromQuote->substr(1);
    const MaybeText fromEnd = fromFirst(open, u'"');
    if (!fromEnd) return std::nullopt;
    text = fromEnd->substr(1);
    return open.substr(0, open.size() - fromEnd->size());
  }

  static MaybeText fromFirst(const Text& text, char16_t wanted) {
    const std::size_t place = text.find(wanted);
    if (place == Text::npos) return std::nullopt;
    return text.substr(place);
  }
};

}  // namespace glossmill
