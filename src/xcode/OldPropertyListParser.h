#pragma once

#include <optional>
#include <string_view>

#include "xcode/PlistWords.h"
#include "xcode/PropertyListBuilder.h"

namespace glossmill {

/// Reads the old syntax: `{ key = value; }`, `( value, value )`, `<0fbd77>` and texts with or without quotes.
class OldPropertyListParser {
 public:
  OldPropertyListParser(std::string_view text, PropertyListBuilder& builder) : m_text(text), m_builder(builder) {}

  /// Builds what stands in front of the first mistake.
  std::optional<PlistMistake> parse();

 private:
  using Kind = PropertyList::Kind;

  // Each of these returns false after a mistake.
  bool skipGap();
  bool step();
  bool takeEntryOrEnd();
  bool takeItemOrEnd();
  bool takeValue();
  bool takeData();
  bool open(Kind kind);
  bool close();
  bool endValue();
  bool takeSeparator(char separator, char closing, std::string_view sentence);
  bool fail(std::size_t at, std::string_view sentence);
  bool failWord(const PlistWord& word, std::string_view sentence);

  bool isAt(char character) const { return m_at < m_text.size() && m_text[m_at] == character; }
  PlistWord takeWord();
  void addText(const PlistWord& word);

  std::string_view m_text;
  PropertyListBuilder& m_builder;
  std::size_t m_at = 0;
  std::size_t m_valueEnd = 0;  ///< behind the value that was read last
  std::optional<PlistMistake> m_mistake;
};

}  // namespace glossmill
