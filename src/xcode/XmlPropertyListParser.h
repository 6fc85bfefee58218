#pragma once

#include <optional>
#include <string_view>

#include "xcode/PropertyListBuilder.h"
#include "xcode/XmlReader.h"

namespace glossmill {

/// Reads a property list in XML: plist, dict, key, array, string, integer, real, date, data, true and false. All but
/// dict, array and data give texts; true is "1" and false is "0", as the old syntax has it.
class XmlPropertyListParser {
 public:
  XmlPropertyListParser(std::string_view text, PropertyListBuilder& builder);

  /// Builds what stands in front of the first mistake.
  std::optional<PlistMistake> parse();

 private:
  using Kind = PropertyList::Kind;

  // Each of these returns false after a mistake.
  bool takeTag(const XmlTag& tag);
  bool takeKey(const XmlTag& tag);
  bool takeValue(const XmlTag& tag);
  bool takeText(const XmlTag& tag, Kind kind);
  bool open(const XmlTag& tag, Kind kind);
  bool close(const XmlTag& tag);
  bool fail(const XmlTag& tag, std::string_view sentence);

  std::string_view m_text;
  PropertyListBuilder& m_builder;
  XmlReader m_reader;
  bool m_isInPlist = false;  ///< between <plist> and </plist>
  std::optional<PlistMistake> m_mistake;
};

}  // namespace glossmill
