#include "xcode/NameSearch.h"

#include <algorithm>

#include "xcode/SourceText.h"

namespace glossmill {

NameSearch::NameSearch(const std::vector<std::string>& names) : m_pairs(names) {
  for (std::size_t place = 0; place < names.size(); ++place) {
    if (m_names.add(names[place]).second) m_places.push_back(place);
  }
  if (!m_pairs.areFew()) m_grams.emplace(names);
}

std::size_t NameSearch::nextPlace(std::string_view text, std::size_t at) const {
  return m_grams ? m_grams->next(text, at) : m_pairs.next(text, at);
}

NameSearch::Hit NameSearch::next(std::string_view text, std::size_t from) const {
  std::size_t at = nextPlace(text, from);
  while (at < text.size()) {
    std::size_t begin = at;
    while (begin > from && isWordByte(text[begin - 1])) --begin;
    const std::size_t end = plainWordEnd(text, at);
    const std::optional<std::size_t> found = find(text.substr(begin, end - begin));
    if (found) return {begin, end, *found};
    from = std::max(end, at + 1);
    at = nextPlace(text, from);
  }
  return {text.size(), text.size(), 0};
}

std::optional<std::size_t> NameSearch::find(std::string_view name) const {
  const std::optional<KeyIndex::Number> number = m_names.find(name);
  return number ? std::optional(m_places[*number]) : std::nullopt;
}

}  // namespace glossmill
