#include "xcode/WholeTexts.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string>

#include "text/ByteSearch.h"
#include "xcode/AnyByteSearch.h"
#include "xcode/CLiteral.h"
#include "xcode/CPieces.h"
#include "xcode/SourceText.h"
#include "xcode/SwiftLiteral.h"
#include "xcode/XmlText.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestText = 4096;
constexpr std::size_t kFewestSlots = 2048;

/// Never 0.
std::uint64_t hashOfText(std::string_view text) {
  return std::hash<std::string_view>()(text) | 1;
}

/// Reads escapes that mean the same in every language; false where there are others.
bool readCommonEscapes(std::string_view text, std::string& value) {
  constexpr std::string_view kLetters = "ntr\"'\\";
  constexpr std::string_view kValues = "\n\t\r\"'\\";
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t backslash = findByte(text, '\\', at);
    value.append(text, at, backslash - at);
    if (backslash == text.size()) break;
    const std::size_t letter = backslash + 1 < text.size() ? kLetters.find(text[backslash + 1]) : std::string::npos;
    if (letter == std::string_view::npos) return false;
    value += kValues[letter];
    at = backslash + 2;
  }
  return true;
}

/// The next byte that a literal of one line may begin or end at, or that escapes another.
std::size_t nextMark(std::string_view text, std::size_t at) {
  return findAnyOf<'"', '\\', '\n', '\r'>(text, at);
}

/// Behind a backslash and what it escapes, which may be the end of the line.
std::size_t behindEscape(std::string_view text, std::size_t backslash) {
  return std::max(backslash + 2, backslash + continuationLength(text, backslash));
}

/// The quote that ends the literal whose text begins at `begin`, or the length of the text.
std::size_t closingQuote(std::string_view text, std::size_t begin) {
  std::size_t at = nextMark(text, begin);
  while (at < text.size() && text[at] == '\\') at = nextMark(text, behindEscape(text, at));
  return at < text.size() && text[at] == '"' ? at : text.size();
}

/// Behind all that may stand between literals that the compiler joins.
std::size_t behindJoint(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    const std::size_t continued = continuationLength(text, at);
    if (isBlank(text[at]) || isLineEnd(text[at]) || text[at] == '@') {
      ++at;
    } else if (continued != 0) {
      at += continued;
    } else if (text[at] == '/' && next == '*') {
      at = blockCommentEnd(text, at);
    } else if (text[at] == '/' && next == '/') {
      at = lineCommentEnd(text, at);
    } else {
      break;
    }
  }
  return std::min(at, text.size());
}

/// What the compiler joins to a literal.
struct Joined {
  std::size_t end = 0;     ///< behind the last literal
  std::size_t beyond = 0;  ///< behind what follows it and was looked at
};

/// From the last quote of the first literal; nothing far away is looked at.
Joined joinedTo(std::string_view text, std::size_t quote) {
  const std::string_view near = text.substr(0, quote + kLongestText);
  Joined joined{quote + 1, behindJoint(near, quote + 1)};
  while (joined.beyond < near.size() && near[joined.beyond] == '"') {
    const std::size_t closing = closingQuote(near, joined.beyond + 1);
    if (closing == near.size()) break;
    joined = {closing + 1, behindJoint(near, closing + 1)};
  }
  return joined;
}

}  // namespace

void WholeTexts::add(std::string_view text) {
  m_hashes.push_back(hashOfText(text));
}

void WholeTexts::add(const WholeTexts& other) {
  m_hashes.insert(m_hashes.end(), other.m_hashes.begin(), other.m_hashes.end());
}

std::size_t WholeTexts::slotOf(std::uint64_t hash) const {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t at = static_cast<std::size_t>(hash >> 1) & mask;
  while (m_slots[at] != 0 && m_slots[at] != hash) at = (at + 1) & mask;
  return at;
}

void WholeTexts::fillSlots() {
  if (m_slots.size() < 2 * m_hashes.size()) {
    m_slots.assign(std::bit_ceil(std::max(kFewestSlots, 2 * m_hashes.size())), 0);
    m_slotted = 0;
  }
  for (; m_slotted < m_hashes.size(); ++m_slotted) m_slots[slotOf(m_hashes[m_slotted])] = m_hashes[m_slotted];
}

/// Either language may be meant.
void WholeTexts::addSpelled(std::string_view text) {
  std::string plain;
  if (readCommonEscapes(text, plain)) return add(plain);
  const std::string literal = '"' + std::string(text) + '"';
  if (const Result<std::string> value = cLiteralValue(literal)) add(value.value());
  if (const Result<std::string> value = swiftLiteralValue(literal)) add(value.value());
}

/// From a literal with these quotes on, if others are joined to it. Gives the place up to which no others begin.
std::size_t WholeTexts::addJoined(std::string_view text, std::size_t first, std::size_t last) {
  const Joined joined = joinedTo(text, last);
  if (joined.end == last + 1) return joined.beyond;
  const Result<std::string> value = cLiteralValue(text.substr(first, joined.end - first));
  if (value) add(value.value());
  return joined.beyond;
}

void WholeTexts::addSource(std::string_view text) {
  std::size_t open = std::string_view::npos;
  std::size_t beyondJoined = 0;
  bool isPlain = true;
  std::size_t at = nextMark(text, 0);
  while (at < text.size()) {
    const char byte = text[at];
    if (byte == '\\') {
      isPlain = false;
      at = nextMark(text, behindEscape(text, at));
      continue;
    }
    const bool isText = open != std::string_view::npos && byte == '"' && at > open && at - open <= kLongestText;
    if (isText && isPlain) add(text.substr(open, at - open));
    if (isText && !isPlain) addSpelled(text.substr(open, at - open));
    if (isText && open >= beyondJoined) beyondJoined = addJoined(text, open - 1, at);
    open = byte == '"' ? at + 1 : std::string_view::npos;
    isPlain = true;
    at = nextMark(text, at + 1);
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

bool WholeTexts::hold(std::string_view text) {
  fillSlots();
  return !m_hashes.empty() && m_slots[slotOf(hashOfText(text))] != 0;
}

}  // namespace glossmill
