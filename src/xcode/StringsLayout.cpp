#include "xcode/StringsLayout.h"

#include <utility>

#include "text/ByteSearch.h"
#include "xcode/PlistWords.h"
#include "xcode/XmlReader.h"

namespace glossmill {

namespace {

/// Without the marks of a comment and the white space beside them.
std::string_view commentText(std::string_view comment) {
  constexpr std::string_view kWhiteSpace = " \t\r\n";
  for (const auto& [open, close] : {std::pair("/*", "*/"), std::pair("<!--", "-->"), std::pair("//", "")}) {
    if (!comment.starts_with(open)) continue;
    comment.remove_prefix(std::string_view(open).size());
    comment.remove_suffix(std::string_view(close).size());
    break;
  }
  const std::size_t begin = comment.find_first_not_of(kWhiteSpace);
  if (begin == std::string_view::npos) return {};
  return comment.substr(begin, comment.find_last_not_of(kWhiteSpace) - begin + 1);
}

}  // namespace

TextRange StringsLayout::gapBefore(std::size_t entry) const {
  const std::vector<StringsEntry>& entries = m_document.entries();
  const std::size_t begin = entry == 0 ? m_document.body().begin : entries[entry - 1].end;
  return {begin, entry < entries.size() ? entries[entry].begin : m_document.body().end};
}

std::vector<TextRange> StringsLayout::commentsIn(TextRange gap) const {
  std::vector<TextRange> comments;
  std::size_t at = skipPlistSpace(m_text, gap.begin);
  while (at < gap.end) {
    const std::size_t end = endOfComment(at);
    if (end == at) break;
    comments.push_back({at, end});
    at = skipPlistSpace(m_text, end);
  }
  return comments;
}

std::size_t StringsLayout::endOfComment(std::size_t at) const {
  const bool isXml = m_document.body().syntax == StringsSyntax::Xml;
  return isXml ? XmlReader::endOfComment(m_text, at) : endOfPlistComment(m_text, at);
}

TextRange StringsLayout::attachedComments(std::size_t entry) const {
  const TextRange gap = gapBefore(entry);
  const std::size_t endOfLineBefore = entry == 0 ? 0 : firstLineEndIn(gap);
  const std::vector<TextRange> comments = commentsIn(gap);
  TextRange attached{gap.end, gap.end};
  for (auto comment = comments.rbegin(); comment != comments.rend(); ++comment) {
    if (comment->begin < endOfLineBefore || lineEndsIn({comment->end, attached.begin}) > 1) break;
    if (attached.empty()) attached.end = comment->end;
    attached.begin = comment->begin;
  }
  return attached;
}

std::string StringsLayout::commentOf(std::size_t entry) const {
  std::string text;
  for (const TextRange& comment : commentsIn(attachedComments(entry))) {
    if (!text.empty()) text += '\n';
    text += commentText(m_text.substr(comment.begin, comment.end - comment.begin));
  }
  return text;
}

TextRange StringsLayout::header() const {
  const TextRange gap = gapBefore(0);
  const std::vector<TextRange> comments = commentsIn(gap);
  if (comments.empty()) return {gap.begin, gap.begin};
  TextRange header = comments.front();
  for (const TextRange& comment : comments) {
    if (lineEndsIn({header.end, comment.begin}) > 1) return header;
    header.end = comment.end;
  }
  const bool isSetOff = lineEndsIn({header.end, gap.end}) > 1;
  return isSetOff ? header : TextRange{gap.begin, gap.begin};
}

std::size_t StringsLayout::blankLinesBefore(std::size_t entry) const {
  const std::size_t begin = attachedComments(entry).begin;
  const std::vector<TextRange> comments = commentsIn({gapBefore(entry).begin, begin});
  const std::size_t lineEnds = lineEndsIn({comments.empty() ? gapBefore(entry).begin : comments.back().end, begin});
  return lineEnds > 1 ? lineEnds - 1 : 0;
}

bool StringsLayout::endsLine(std::size_t entry) const {
  const std::size_t end = endWithComments(entry);
  return end == m_text.size() || lineEndAt(end) != 0;
}

bool StringsLayout::continuesLine(std::size_t entry) const {
  return entry > 0 && lineEndsIn(gapBefore(entry)) == 0;
}

std::size_t StringsLayout::endWithComments(std::size_t entry) const {
  const TextRange gap = gapBefore(entry + 1);
  const std::size_t endOfLine = firstLineEndIn(gap);
  std::size_t end = gap.begin;
  for (const TextRange& comment : commentsIn(gap)) {
    if (comment.begin > endOfLine) break;
    end = comment.end;
  }
  return behindBlanks(end);
}

std::size_t StringsLayout::firstLineEndIn(TextRange range) const {
  return findEither(m_text.substr(0, range.end), '\n', '\r', range.begin);
}

std::size_t StringsLayout::lastLineStartIn(TextRange range) const {
  const std::size_t end = m_text.substr(range.begin, range.end - range.begin).find_last_of("\r\n");
  return end == std::string_view::npos ? range.begin : range.begin + end + 1;
}

std::size_t StringsLayout::behindBlanks(std::size_t at) const {
  while (at < m_text.size() && (m_text[at] == ' ' || m_text[at] == '\t')) ++at;
  return at;
}

std::size_t StringsLayout::beforeBlanks(std::size_t at) const {
  while (at > 0 && (m_text[at - 1] == ' ' || m_text[at - 1] == '\t')) --at;
  return at;
}

std::size_t StringsLayout::lineEndAt(std::size_t at) const {
  const std::string_view rest = m_text.substr(at);
  if (rest.starts_with("\r\n")) return 2;
  return rest.starts_with('\n') || rest.starts_with('\r') ? 1 : 0;
}

std::size_t StringsLayout::lineEndBefore(std::size_t at) const {
  const std::string_view before = m_text.substr(0, at);
  if (before.ends_with("\r\n")) return 2;
  return before.ends_with('\n') || before.ends_with('\r') ? 1 : 0;
}

std::size_t StringsLayout::lineEndsIn(TextRange range) const {
  const std::string_view part = m_text.substr(0, range.end);
  std::size_t count = 0;
  for (std::size_t at = findEither(part, '\n', '\r', range.begin); at < part.size();
       at = findEither(part, '\n', '\r', at + lineEndAt(at))) {
    ++count;
  }
  return count;
}

std::size_t StringsLayout::textBegin() const {
  return behindMarks(m_text);
}

}  // namespace glossmill
