#pragma once

#include <optional>
#include <string_view>

#include "xcode/StringsEntry.h"
#include "xcode/XmlReader.h"

namespace glossmill {

/// The same as StringsReader for a property list in XML: one dictionary of texts.
class XmlStringsReader {
 public:
  explicit XmlStringsReader(std::string_view text);

  bool next(StringsEntry& entry);
  const std::optional<PlistMistake>& mistake() const { return m_mistake; }
  const StringsBody& body() const { return m_body; }

 private:
  // Each of these returns false after a mistake.
  bool begin();
  bool takeText(const XmlTag& tag, std::string_view name, StringsText& text, std::string_view sentence);
  bool finish();
  bool fail(const XmlTag& tag, std::string_view sentence);

  XmlReader m_reader;
  bool m_hasBegun = false;
  bool m_isInPlist = false;
  bool m_isFinished = false;
  StringsBody m_body;
  std::optional<PlistMistake> m_mistake;
};

}  // namespace glossmill
