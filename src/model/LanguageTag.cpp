#include "model/LanguageTag.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "model/OldLanguageNames.h"
#include "text/Split.h"

namespace glossmill {

namespace {

/// Codes that mean the same language as one that is used today.
constexpr std::pair<std::string_view, std::string_view> kReplaced[] = {
    {"in", "id"},
    {"iw", "he"},
    {"ji", "yi"},
    {"jw", "jv"},
    {"mo", "ro"},
    {"sh", "sr-Latn"},
    {"tl", "fil"},
    {"zh-CN", "zh-Hans"},
    {"zh-SG", "zh-Hans"},
    {"zh-TW", "zh-Hant"},
    {"zh-Hans-CN", "zh-Hans"},
    {"zh-Hant-TW", "zh-Hant"},
    {"zh-Hant-HK", "zh-HK"},
};

bool isLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}
bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}
bool isLetters(std::string_view part) {
  return std::all_of(part.begin(), part.end(), isLetter);
}
bool isDigits(std::string_view part) {
  return std::all_of(part.begin(), part.end(), isDigit);
}
bool isRegion(std::string_view part) {
  return (part.size() == 2 && isLetters(part)) || (part.size() == 3 && isDigits(part));
}
bool isVariant(std::string_view part) {
  const bool isKnownWord = std::all_of(part.begin(), part.end(), [](char it) { return isLetter(it) || isDigit(it); });
  const bool isLong = part.size() >= 5 && part.size() <= 8;
  return isKnownWord && (isLong || (part.size() == 4 && isDigit(part.front())));
}
bool isPrivate(std::string_view part) {
  return !part.empty() && part.size() <= 8 &&
         std::all_of(part.begin(), part.end(), [](char it) { return isLetter(it) || isDigit(it); });
}

char lower(char byte) {
  return static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 0x20 : byte);
}
char upper(char byte) {
  return static_cast<char>(byte >= 'a' && byte <= 'z' ? byte - 0x20 : byte);
}
std::string inLowerCase(std::string_view part) {
  std::string text(part);
  std::transform(text.begin(), text.end(), text.begin(), lower);
  return text;
}
std::string inUpperCase(std::string_view part) {
  std::string text(part);
  std::transform(text.begin(), text.end(), text.begin(), upper);
  return text;
}
std::string inTitleCase(std::string_view part) {
  std::string text = inLowerCase(part);
  text.front() = upper(text.front());
  return text;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

/// Reads the parts behind the language one after the other; stops in front of one that has no place there.
std::size_t takeParts(const std::vector<std::string_view>& parts, std::string& tag) {
  std::size_t at = 1;
  if (at < parts.size() && parts[at].size() == 4 && isLetters(parts[at])) tag += "-" + inTitleCase(parts[at++]);
  if (at < parts.size() && isRegion(parts[at])) tag += "-" + inUpperCase(parts[at++]);
  while (at < parts.size() && isVariant(parts[at])) tag += "-" + inLowerCase(parts[at++]);
  if (at + 1 >= parts.size() || inLowerCase(parts[at]) != "x") return at;
  tag += "-x";
  for (++at; at < parts.size() && isPrivate(parts[at]); ++at) tag += "-" + inLowerCase(parts[at]);
  return at;
}

/// Under which all spellings and names of a language are the same.
std::string usualCode(std::string_view code) {
  const std::string_view old = codeOfOldName(code);
  if (!old.empty()) return std::string(old);
  const Result<std::string> tag = languageTagOf(code);
  if (!tag) return std::string(code);
  const auto replaced = std::find_if(std::begin(kReplaced), std::end(kReplaced),
                                     [&tag](const auto& it) { return it.first == tag.value(); });
  return replaced == std::end(kReplaced) ? tag.value() : std::string(replaced->second);
}

}  // namespace

Result<std::string> languageTagOf(std::string_view typed) {
  std::string text(trimmed(typed));
  if (text.empty()) return Error{"There is no language code."};
  std::replace(text.begin(), text.end(), '_', '-');
  const std::vector<std::string_view> parts = split(text, '-');
  const std::string_view language = parts.front();
  if (language.size() < 2 || language.size() > 3 || !isLetters(language)) {
    return Error{"A language code begins with two or three letters, such as de or pt-BR."};
  }
  std::string tag = inLowerCase(language);
  const std::size_t taken = takeParts(parts, tag);
  if (taken < parts.size()) {
    return Error{"In a language code \"" + std::string(parts[taken]) +
                 "\" is neither a script, a region nor a variant at its place."};
  }
  return tag;
}

std::optional<std::size_t> sameLanguageAmong(const std::vector<std::string>& codes, std::string_view code) {
  const std::string wanted = usualCode(code);
  const auto found =
      std::find_if(codes.begin(), codes.end(), [&wanted](const std::string& it) { return usualCode(it) == wanted; });
  if (found == codes.end()) return std::nullopt;
  return static_cast<std::size_t>(found - codes.begin());
}

}  // namespace glossmill
