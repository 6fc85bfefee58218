#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "xcode/PropertyListBuilder.h"

namespace glossmill {

/// True when a property list is XML: "<?", "<!" or "<plist" stands in front of all but marks and white space.
bool isXml(std::string_view text);

/// What the first line says, as in `<?xml version="1.0" encoding="UTF-8"?>`; empty when it says nothing.
std::string_view declaredXmlEncoding(std::string_view text);

struct XmlTag {
  enum class Kind { Open, Empty, Close, End, Mistake };

  Kind kind = Kind::End;
  std::string_view name;
  std::size_t begin = 0;  ///< of "<"
  std::size_t end = 0;    ///< behind ">"
};

/// The text between an opening tag and its closing tag.
struct XmlContent {
  std::size_t begin = 0;
  std::size_t end = 0;    ///< of the closing tag
  std::size_t after = 0;  ///< behind the closing tag
  bool isPlain = true;    ///< the text reads as it is spelled
};

/// Reads the little XML that property lists are made of, tag by tag. Document types are passed over; entities of their
/// own are a mistake.
class XmlReader {
 public:
  explicit XmlReader(std::string_view text, std::size_t at = 0) : m_text(text), m_at(at) {}

  /// The next tag, behind white space, comments, instructions and document type. After a mistake nothing more is read.
  XmlTag nextTag();
  /// What stands behind the opening tag that was read last, which holds nothing but text. Nothing after a mistake.
  std::optional<XmlContent> content(std::string_view name);
  /// Where the comment ends that begins at `at`; `at` when none does, or it is not closed.
  static std::size_t endOfComment(std::string_view text, std::size_t at);

  std::size_t at() const { return m_at; }
  const std::optional<PlistMistake>& mistake() const { return m_mistake; }

 private:
  bool skipToTag();
  std::optional<std::size_t> endOfOther() const;
  XmlTag takeTag();
  XmlTag fail(std::size_t at, std::string_view sentence);

  std::string_view m_text;
  std::size_t m_at = 0;
  std::optional<PlistMistake> m_mistake;
};

}  // namespace glossmill
