#pragma once

#include <string>

#include "xcode/PlistEscapes.h"
#include "xcode/PropertyList.h"

namespace glossmill {

/// A value in the old syntax, on one line, all texts between quotes; "nothing" when there is none.
inline std::string printed(PropertyList::Value value) {
  std::string text;
  switch (value.kind()) {
    case PropertyList::Kind::None:
      return "nothing";
    case PropertyList::Kind::Text:
      return '"' + escapePlist(value.text(), '"') + '"';
    case PropertyList::Kind::Data:
      return '<' + std::string(value.text()) + '>';
    case PropertyList::Kind::Array:
      for (const PropertyList::Value item : value.items()) text += printed(item) + ",";
      return '(' + text + ')';
    case PropertyList::Kind::Dictionary:
      for (const auto entry : value.entries()) {
        text += '"' + escapePlist(entry.key, '"') + "\"=" + printed(entry.value) + ";";
      }
      return '{' + text + '}';
  }
  return text;
}

inline std::string printed(const PropertyList& list) {
  return printed(list.root());
}

/// The mistake as "line:column sentence"; empty when there is none.
inline std::string mistakeOf(const PropertyList& list) {
  if (!list.error()) return {};
  const SyntaxError& error = *list.error();
  return std::to_string(error.place.line) + ":" + std::to_string(error.place.column) + " " + error.sentence;
}

}  // namespace glossmill
