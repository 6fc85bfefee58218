#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "xcode/PropertyListBuilder.h"
#include "xcode/StringsEntry.h"

namespace glossmill {

/// Gives the entries of a text one by one, up to the end or the first mistake. A text is valid UTF-8 and shorter than
/// four gigabytes.
class StringsReader {
 public:
  explicit StringsReader(std::string_view text);

  bool next(StringsEntry& entry);
  /// Once next has returned false.
  const std::optional<PlistMistake>& mistake() const { return m_mistake; }
  /// Its end is known when next has returned false without a mistake.
  const StringsBody& body() const { return m_body; }

 private:
  // Each of these returns false after a mistake, and at the end.
  bool skipGap();
  bool takeText(StringsText& text, std::string_view sentence);
  bool takeRest(StringsEntry& entry);
  bool takeSemicolon(StringsEntry& entry);
  bool finish();
  bool fail(std::size_t at, std::string_view sentence);

  bool isAt(char character) const { return m_at < m_text.size() && m_text[m_at] == character; }

  std::string_view m_text;
  std::size_t m_at = 0;
  bool m_hasBraces = false;
  bool m_isFinished = false;
  StringsBody m_body;
  std::optional<PlistMistake> m_mistake;
};

}  // namespace glossmill
