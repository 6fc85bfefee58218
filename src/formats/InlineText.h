#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>

namespace glossmill {

/// The text of a `source` or `target`, or the tag in it that a strings file has no place for.
struct InlineText {
  std::string text;
  std::string tag;  ///< empty when the text is whole

  bool isWhole() const { return tag.empty(); }
};

/// Of XLIFF 1.2: tags that hold code of the original, and those that only mark a part, stand for what is in them.
InlineText inlineText(const pugi::xml_node& element);

/// Of XLIFF 2.0, where code of the original lies in the `originalData` of the unit.
InlineText inlineText2(const pugi::xml_node& element, const pugi::xml_node& unit);

/// The first child with this name, whatever its prefix.
pugi::xml_node childNamed(const pugi::xml_node& parent, const char* name);
bool isNamed(const pugi::xml_node& node, const char* name);

}  // namespace glossmill
