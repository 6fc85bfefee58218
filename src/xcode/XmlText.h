#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// A piece of the text between two tags of a property list in XML.
struct XmlPiece {
  enum class Kind {
    Text,     ///< reads as it is spelled
    Section,  ///< CDATA: reads as it is spelled, too
    Comment,  ///< stands for nothing
    Entity,   ///< stands for `character`
    Markup,   ///< a tag begins, or the text ends
    Mistake,  ///< an unknown entity, or a section or a comment that is not closed
  };

  Kind kind = Kind::Markup;
  std::size_t begin = 0;  ///< of what is read, for Text and Section
  std::size_t length = 0;
  std::size_t end = 0;  ///< where the next piece begins
  char32_t character = 0;
};

XmlPiece xmlPieceAt(std::string_view text, std::size_t at);

/// What the text between two tags stands for; without mistakes.
std::string unescapeXml(std::string_view raw);

/// The text to write between two tags. Nothing when it holds a character that XML cannot hold.
std::optional<std::string> escapeXml(std::string_view value);

}  // namespace glossmill
