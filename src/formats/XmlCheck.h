#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"

namespace glossmill {

/// The lines on which elements begin, to be asked for by the place of their name in the text.
class ElementLines {
 public:
  void add(std::size_t nameAt, std::uint32_t line) { m_lines.push_back({nameAt, line}); }
  std::size_t count() const { return m_lines.size(); }
  /// 0 for a place that is not known. Quick when it is asked for one place after the other.
  std::uint32_t at(std::size_t nameAt);

 private:
  struct Place {
    std::size_t nameAt;
    std::uint32_t line;
  };
  std::vector<Place> m_lines;  ///< in the order of the places
  std::size_t m_next = 0;      ///< behind the one that was asked for last
};

/// What a text holds that was looked through.
struct XmlSurvey {
  ElementLines lines;
  bool hasShortNames = false;  ///< an element has a name of three characters at most, as tags inside of texts do
};

/// Looks through UTF-8 text before it is parsed, and refuses what is not well-formed XML 1.0, entities of its own,
/// encodings that it was not decoded from, and more depth, attributes or elements than any honest file has. Gives the
/// lines of the elements with one of these names, whatever their prefix.
Result<XmlSurvey> checkXml(std::string_view text, const std::vector<std::string_view>& names);

/// The name without its prefix.
std::string_view localName(std::string_view name);

}  // namespace glossmill
