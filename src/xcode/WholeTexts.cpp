#include "xcode/WholeTexts.h"

#include <algorithm>
#include <functional>
#include <string>

#include "xcode/AnyByteSearch.h"
#include "xcode/CLiteral.h"
#include "xcode/SwiftLiteral.h"
#include "xcode/XmlText.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestText = 4096;

std::uint64_t hashOfText(std::string_view text) {
  return std::hash<std::string_view>()(text);
}

}  // namespace

void WholeTexts::add(std::string_view text) {
  m_hashes.push_back(hashOfText(text));
}

/// Either language may be meant.
void WholeTexts::addSpelled(std::string_view text) {
  const std::string literal = '"' + std::string(text) + '"';
  if (const Result<std::string> value = cLiteralValue(literal)) add(value.value());
  if (const Result<std::string> value = swiftLiteralValue(literal)) add(value.value());
}

void WholeTexts::addSource(std::string_view text) {
  std::size_t open = std::string_view::npos;
  bool isPlain = true;
  std::size_t at = findAnyOf<'"', '\\', '\n', '\r'>(text, 0);
  while (at < text.size()) {
    const char byte = text[at];
    if (byte == '\\') {
      isPlain = false;
    } else {
      const bool isText = open != std::string_view::npos && byte == '"' && at > open && at - open <= kLongestText;
      if (isText && isPlain) add(text.substr(open, at - open));
      if (isText && !isPlain) addSpelled(text.substr(open, at - open));
      open = byte == '"' ? at + 1 : std::string_view::npos;
      isPlain = true;
    }
    at = findAnyOf<'"', '\\', '\n', '\r'>(text, at + (byte == '\\' ? 2 : 1));
  }
}

void WholeTexts::addDocument(std::string_view text) {
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = findAnyOf<'"', '<', '>', '"'>(text, begin);
    const std::string_view piece = text.substr(begin, end - begin);
    if (!piece.empty() && piece.size() <= kLongestText) {
      const bool isPlain = piece.find('&') == std::string_view::npos;
      if (isPlain) add(piece);
      if (!isPlain) add(unescapeXml(piece));
    }
    begin = end + 1;
  }
}

void WholeTexts::finish() {
  std::sort(m_hashes.begin(), m_hashes.end());
  m_hashes.erase(std::unique(m_hashes.begin(), m_hashes.end()), m_hashes.end());
}

bool WholeTexts::hold(std::string_view text) const {
  return std::binary_search(m_hashes.begin(), m_hashes.end(), hashOfText(text));
}

}  // namespace glossmill
