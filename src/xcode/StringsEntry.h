#pragma once

#include <cstddef>
#include <cstdint>

namespace glossmill {

/// In what a strings file is written.
enum class StringsSyntax : std::uint8_t { Words, Xml };

/// A key or a value as it is spelled: between quotes or tags, or bare.
struct StringsText {
  std::uint32_t begin = 0;  ///< of what stands between them
  std::uint32_t end = 0;
  char quote = 0;       ///< '"' or '\''; 0 for a bare word, '<' between tags
  bool isPlain = true;  ///< it reads as it is spelled
};

/// One entry of a strings file by its places in the text. Comments and white space around it are not part of it.
struct StringsEntry {
  enum class Form : std::uint8_t {
    Whole,     ///< key and value
    KeyOnly,   ///< `"key";`, which says that the value is the key
    EmptyTag,  ///< in XML: `<string/>` for the value
  };

  std::uint32_t begin = 0;  ///< of the key, with its quote or tag
  std::uint32_t end = 0;    ///< behind the semicolon or closing tag
  StringsText key;
  StringsText value;  ///< the key, when there is only that
  Form form = Form::Whole;
  bool hasSemicolon = true;  ///< the last entry may lack it

  /// With quotes; not for XML.
  std::uint32_t keyEnd() const { return key.end + (key.quote != 0 ? 1U : 0U); }
  std::uint32_t valueBegin() const { return value.begin - (value.quote != 0 ? 1U : 0U); }
  std::uint32_t valueEnd() const { return value.end + (value.quote != 0 ? 1U : 0U); }
};

/// Where the entries of a file stand: between the outer braces or inside the dictionary, or everywhere.
struct StringsBody {
  StringsSyntax syntax = StringsSyntax::Words;
  std::size_t begin = 0;
  std::size_t end = 0;
  bool isEmptyTag = false;  ///< `<dict/>`, from begin to end
};

}  // namespace glossmill
