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
constexpr std::size_t kFewestTexts = 1024;

/// Never 0.
std::uint64_t hashOfText(std::string_view text) {
  return std::hash<std::string_view>()(text) | 1;
}

}  // namespace

void WholeTexts::add(std::string_view text) {
  if (2 * m_count >= m_slots.size()) grow();
  const std::uint64_t hash = hashOfText(text);
  std::uint64_t& slot = m_slots[slotOf(hash)];
  m_count += slot == 0 ? 1 : 0;
  slot = hash;
}

std::size_t WholeTexts::slotOf(std::uint64_t hash) const {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t at = static_cast<std::size_t>(hash >> 1) & mask;
  while (m_slots[at] != 0 && m_slots[at] != hash) at = (at + 1) & mask;
  return at;
}

void WholeTexts::grow() {
  std::vector<std::uint64_t> former(std::max(kFewestTexts, 2 * m_slots.size()));
  former.swap(m_slots);
  for (const std::uint64_t hash : former) {
    if (hash != 0) m_slots[slotOf(hash)] = hash;
  }
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

bool WholeTexts::hold(std::string_view text) const {
  return !m_slots.empty() && m_slots[slotOf(hashOfText(text))] != 0;
}

}  // namespace glossmill
