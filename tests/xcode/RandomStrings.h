#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/DecodedFile.h"
#include "xcode/PlistEscapes.h"
#include "xcode/PlistWords.h"
#include "xcode/RandomPieces.h"
#include "xcode/XmlText.h"

namespace glossmill {

/// Strings files that are correct and look as strangely as they may.
class RandomStrings {
 public:
  explicit RandomStrings(unsigned seed) : m_random(seed) {}

  RandomPieces& random() { return m_random; }

  std::string key() {
    static const std::vector<std::string> keys = {"a",   "b",   "c",    "d",  "e", "f",      "B",
                                                  "C D", "ä\"", "x\\y", "/*", "",  "1.title"};
    return m_random.pick(keys);
  }

  std::string value() {
    static const std::vector<std::string> pieces = {"a", "b ", "\"",  "'",  "\\",  "\n", "\r\n", "\t",
                                                    "ä", "“",  "/*",  "*/", "//",  ";",  "=",    "}",
                                                    "&", "<",  "]]>", "%@", "-->", "é",  "Ω"};
    return m_random.heap(pieces, 5);
  }

  /// Of the old syntax.
  std::string words() {
    m_lineEnd = m_random.pick(kLineEnds);
    const bool hasBraces = m_random.oneIn(5);
    std::string text = m_random.oneIn(4) ? comment() + m_lineEnd + m_lineEnd : "";
    if (hasBraces) text += "{" + gap();
    for (std::size_t left = m_random.number(8); left > 0; --left) text += entry(left == 1);
    text += gap();
    if (hasBraces) text += "}" + gap();
    return m_random.oneIn(10) ? "\uFEFF" + text : text;
  }

  std::string xml() {
    m_lineEnd = m_random.pick(kLineEnds);
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + m_lineEnd + "<plist version=\"1.0\">" + m_lineEnd;
    if (m_random.oneIn(8)) return text + "<dict/></plist>" + m_lineEnd;
    text += "<dict>";
    for (std::size_t left = m_random.number(6); left > 0; --left) {
      text += xmlGap() + "<key>" + *escapeXml(key()) + "</key>" + xmlGap() + xmlValue();
    }
    return text + xmlGap() + "</dict>" + xmlGap() + "</plist>" + m_lineEnd;
  }

  /// A file as tools write it: every entry looks like the others.
  std::string regular(const std::vector<std::string>& keys) {
    m_lineEnd = m_random.pick(kLineEnds);
    const bool hasComments = m_random.oneIn(2);
    const std::string distance = m_lineEnd + (m_random.oneIn(2) ? m_lineEnd : "");
    const std::string indentation = m_random.oneIn(4) ? "  " : "";
    const std::string separator = m_random.oneIn(4) ? "=" : " = ";
    std::string text = m_random.oneIn(3) ? "/* Header */" + m_lineEnd + m_lineEnd : "";
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (i > 0) text += distance;
      if (hasComments) text += indentation + "/* " + std::to_string(i) + " */" + m_lineEnd;
      text += indentation + quoted(keys[i], '"') + separator + quoted(value(), '"') + ";";
    }
    return text + (m_random.oneIn(4) ? "" : m_random.oneIn(2) ? distance : m_lineEnd);
  }

  /// With a mark, as UTF-16 or in Mac Roman; empty where the text does not fit or would not be read as it was written.
  std::string inSomeEncoding(const std::string& text, std::optional<FileEncoding>& otherwise) {
    static const std::vector<DecodedFile> kinds = {{"", TextEncoding::Utf8, false},
                                                   {"", TextEncoding::Utf8, true},
                                                   {"", TextEncoding::Utf16LittleEndian, true},
                                                   {"", TextEncoding::Utf16BigEndian, true},
                                                   {"", TextEncoding::Utf16LittleEndian, false},
                                                   {"", EightBitEncoding::MacRoman, false}};
    DecodedFile file = m_random.pick(kinds);
    file.text = text;
    otherwise = EightBitEncoding::MacRoman;
    const Result<std::string> bytes = bytesOfFile(file);
    if (!bytes) return {};
    const Result<DecodedFile> again = textOfFile(bytes.value(), otherwise);
    return again && again.value().text == text ? bytes.value() : std::string();
  }

 private:
  static constexpr std::string_view kLineEnds[] = {"\n", "\r\n", "\r"};

  std::string comment() {
    switch (m_random.number(4)) {
      case 0:
        return "/* 1 */";
      case 1:
        return "/**" + m_lineEnd + " 2 **/";
      case 2:
        return "// 3 /*" + m_lineEnd;
      default:
        return "/* a */ // \"b\"" + m_lineEnd + "//" + m_lineEnd;
    }
  }

  std::string gap() {
    static const std::vector<std::string> blanks = {"", " ", "\t", "  "};
    switch (m_random.number(7)) {
      case 0:
        return m_random.pick(blanks);
      case 1:
        return m_lineEnd + m_lineEnd;
      case 2:
        return " " + comment() + m_random.pick(blanks);
      case 3:
        return m_lineEnd + m_lineEnd + comment() + m_lineEnd + m_random.pick(blanks);
      default:
        return m_lineEnd;
    }
  }

  std::string shortGap() { return m_random.oneIn(8) ? " " + comment() + " " : m_random.oneIn(2) ? " " : ""; }

  static std::string quoted(const std::string& text, char quote) { return quote + escapePlist(text, quote) + quote; }

  std::string word(const std::string& text) {
    if (isBareWord(text) && m_random.oneIn(2)) return text + " ";
    return quoted(text, m_random.oneIn(4) ? '\'' : '"');
  }

  std::string entry(bool isLast) {
    const std::string end = isLast && m_random.oneIn(4) ? "" : ";";
    if (m_random.oneIn(8)) return gap() + word(key()) + shortGap() + ";";
    return gap() + word(key()) + shortGap() + "=" + shortGap() + word(value()) + shortGap() + end;
  }

  std::string xmlGap() {
    static const std::vector<std::string> kinds = {
        "", " ", "\n", "\n\t", "\n\n", "<!-- a -->", "\n\t<!-- b -->\n\t", "\n<!-- c -->\n\n"};
    return m_random.pick(kinds);
  }

  std::string xmlValue() {
    if (m_random.oneIn(6)) return "<string/>";
    const std::string text = m_random.oneIn(6) ? "<![CDATA[a<b]]>&#228;" : *escapeXml(value());
    return "<string>" + text + "</string>";
  }

  RandomPieces m_random;
  std::string m_lineEnd = "\n";
};

}  // namespace glossmill
