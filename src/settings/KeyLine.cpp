#include "settings/KeyLine.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

/// Behind the string whose first quote is at `at`.
std::size_t stringEnd(std::string_view text, std::size_t at) {
  for (++at; at < text.size() && text[at] != '"'; ++at) {
    if (text[at] == '\\') ++at;
  }
  return at + 1;
}

bool isFollowedByColon(std::string_view text, std::size_t at) {
  const std::size_t next = text.find_first_not_of(kWhiteSpace, at);
  return next != std::string_view::npos && text[next] == ':';
}

/// Walks through a text and knows at each place which way led there.
class WayFinder {
 public:
  WayFinder(std::string_view text, const JsonWay& way) : m_text(text), m_way(way) {}

  /// Where the last such key or item begins.
  std::optional<std::size_t> find() {
    for (m_at = 0; m_at < m_text.size(); ++m_at) take(m_text[m_at]);
    return m_found;
  }

 private:
  /// An object or a list that is open.
  struct Level {
    bool isList = false;
    std::string key;         ///< or the number of the item
    std::size_t number = 0;  ///< of the item
    bool isNew = true;       ///< the next item has not begun
  };

  void take(char c) {
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ':') return;
    if (c == ']' || c == '}') return m_levels.pop_back();
    if (c == ',') return endItem();
    beginItem();
    if (c == '[' || c == '{') m_levels.push_back({c == '[', {}, 0, true});
    if (c == '"') takeString();
  }

  void endItem() {
    ++m_levels.back().number;
    m_levels.back().isNew = true;
  }

  void beginItem() {
    if (m_levels.empty() || !m_levels.back().isList || !m_levels.back().isNew) return;
    m_levels.back().isNew = false;
    m_levels.back().key = std::to_string(m_levels.back().number);
    look();
  }

  void takeString() {
    const std::size_t end = stringEnd(m_text, m_at);
    const bool isKey = !m_levels.empty() && !m_levels.back().isList && isFollowedByColon(m_text, end);
    if (isKey) {
      m_levels.back().key = m_text.substr(m_at + 1, end - m_at - 2);
      look();
    }
    m_at = end - 1;
  }

  void look() {
    if (m_levels.size() != m_way.size()) return;
    for (std::size_t depth = 0; depth < m_way.size(); ++depth) {
      if (m_levels[depth].key != m_way[depth]) return;
    }
    m_found = m_at;
  }

  std::string_view m_text;
  const JsonWay& m_way;
  std::size_t m_at = 0;
  std::optional<std::size_t> m_found;
  std::vector<Level> m_levels;
};

}  // namespace

std::size_t lineOfKey(std::string_view text, const JsonWay& way) {
  const std::string_view before = text.substr(0, WayFinder(text, way).find().value_or(0));
  return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

std::optional<ScalarPlace> scalarOfKey(std::string_view text, std::string_view key) {
  const JsonWay way{std::string(key)};
  const std::optional<std::size_t> place = WayFinder(text, way).find();
  if (!place) return std::nullopt;
  const std::size_t colon = text.find(':', *place + key.size() + 2);
  const std::size_t start = text.find_first_not_of(kWhiteSpace, colon + 1);
  const std::size_t end = text[start] == '"' ? stringEnd(text, start) : text.find_first_of(" \t\r\n,}", start);
  return ScalarPlace{start, end - start};
}

}  // namespace glossmill
