#include "xcode/StringsRemoval.h"

#include <algorithm>

namespace glossmill {

namespace {

/// Finds what goes with each entry that is taken out.
class RemovedParts {
 public:
  RemovedParts(const std::vector<bool>& isRemoved, const StringsLayout& layout)
      : m_isRemoved(isRemoved), m_layout(layout), m_entries(layout.document().entries()), m_header(layout.header()) {
    findEntriesAhead();
  }

  /// Those that only blanks stand between are one.
  std::vector<TextRange> take() {
    std::vector<TextRange> parts;
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
      if (!m_isRemoved[entry]) continue;
      const bool continues = entry > 0 && m_isRemoved[entry - 1];
      const TextRange part = partOf(entry, continues ? parts.back().end : m_layout.gapBefore(entry).begin);
      if (!parts.empty() && m_layout.behindBlanks(parts.back().end) >= part.begin) {
        parts.back().end = part.end;
      } else {
        parts.push_back(part);
      }
    }
    return parts;
  }

 private:
  bool isOneLine(std::size_t begin, std::size_t end) const { return m_layout.lineEndsIn({begin, end}) == 0; }

  /// For each entry that goes: whether one that stays begins on the line where it ends.
  void findEntriesAhead() {
    m_hasEntryAhead.resize(m_entries.size());
    for (std::size_t entry = m_entries.size(); entry-- > 1;) {
      if (!m_isRemoved[entry - 1] || !m_layout.continuesLine(entry)) continue;
      const bool isWithin = isOneLine(m_entries[entry].begin, m_entries[entry].end);
      m_hasEntryAhead[entry - 1] = !m_isRemoved[entry] || (isWithin && m_hasEntryAhead[entry]);
    }
  }

  /// Everything in front of `floor` is taken or stays already.
  TextRange partOf(std::size_t entry, std::size_t floor) {
    const TextRange gap = m_layout.gapBefore(entry);
    // Entries were taken out up to here, if it is not one that stays.
    m_hasEntryBehind = entry > 0 && (!m_isRemoved[entry - 1] || m_hasEntryBehind);
    TextRange part{firstComment(entry, {floor, gap.end}), m_entries[entry].end};
    m_hasEntryBehind = m_hasEntryBehind && isOneLine(gap.begin, part.end);
    if (!m_hasEntryBehind && !m_hasEntryAhead[entry]) part.end = m_layout.endWithComments(entry);
    return part;
  }

  /// Where the comments begin that go with the entry.
  std::size_t firstComment(std::size_t entry, TextRange gap) const {
    const std::vector<TextRange> comments = m_layout.commentsIn(gap);
    const std::size_t lineEnd = m_layout.firstLineEndIn(m_layout.gapBefore(entry));
    const std::size_t lastLine = m_layout.lastLineStartIn({gap.begin, m_entries[entry].end});
    std::size_t begin = gap.end;
    for (auto comment = comments.rbegin(); comment != comments.rend(); ++comment) {
      const bool isNearest = begin == gap.end;
      if (!isNearest && m_layout.lineEndsIn({comment->end, begin}) > 1) break;
      if (m_hasEntryBehind && comment->begin < lineEnd) break;
      if (m_hasEntryAhead[entry] && comment->begin >= lastLine) break;
      if (entry == 0 && comment->begin < m_header.end) break;
      begin = comment->begin;
    }
    return begin;
  }

  const std::vector<bool>& m_isRemoved;
  const StringsLayout& m_layout;
  const std::vector<StringsEntry>& m_entries;
  TextRange m_header;
  std::vector<bool> m_hasEntryAhead;
  bool m_hasEntryBehind = false;  ///< one that stays, on the line
};

/// Makes whole lines of the parts that are alone on theirs.
class RemovedLines {
 public:
  explicit RemovedLines(const StringsLayout& layout) : m_layout(layout), m_size(layout.document().text().size()) {}

  void add(TextRange part) {
    const std::size_t begin = m_layout.beforeBlanks(part.begin);
    const std::size_t end = m_layout.behindBlanks(part.end);
    const bool startsLine = m_layout.isLineStart(begin);
    const bool endsLine = end == m_size || m_layout.lineEndAt(end) != 0;
    if (startsLine && endsLine) {
      addLines({std::max(begin, m_layout.textBegin()), end + (end == m_size ? 0 : m_layout.lineEndAt(end))});
    } else {
      m_removals.push_back(startsLine ? TextRange{part.begin, end} : TextRange{begin, part.end});
    }
  }

  const std::vector<TextRange>& removals() const { return m_removals; }

 private:
  void addLines(TextRange lines) {
    lines = joinedToLast(lines);
    const std::size_t blankBefore = beginOfBlankLine(lines.begin);
    const bool isFirst = beginsBody(lines.begin);
    const std::size_t blankBehind = endOfBlankLine(lines.end);
    if ((isFirst || blankBefore < lines.begin) && blankBehind > lines.end) {
      lines.end = blankBehind;
    } else if (blankBefore < lines.begin && endsBody(lines.end)) {
      lines = joinedToLast({blankBefore, lines.end});
    }
    // A file without a final line end stays so.
    const bool endsInLine = lines.end == m_size && (m_size == 0 || m_layout.lineEndBefore(m_size) == 0);
    if (endsInLine && lines.begin > m_layout.textBegin()) lines.begin -= m_layout.lineEndBefore(lines.begin);
    m_removals.push_back(lines);
  }

  /// With the lines taken out last, if nothing stands between.
  TextRange joinedToLast(TextRange lines) {
    if (m_removals.empty() || m_removals.back().end < lines.begin) return lines;
    lines.begin = m_removals.back().begin;
    m_removals.pop_back();
    return lines;
  }

  /// Of the blank line that ends at `at`; `at` when there is none.
  std::size_t beginOfBlankLine(std::size_t at) const {
    const std::size_t lineEnd = m_layout.lineEndBefore(at);
    if (lineEnd == 0) return at;
    const std::size_t begin = m_layout.beforeBlanks(at - lineEnd);
    return m_layout.isLineStart(begin) ? begin : at;
  }

  std::size_t endOfBlankLine(std::size_t at) const {
    const std::size_t end = m_layout.behindBlanks(at);
    return end == m_size ? at : m_layout.lineEndAt(end) == 0 ? at : end + m_layout.lineEndAt(end);
  }

  /// Nothing stands in front but what the body begins behind.
  bool beginsBody(std::size_t at) const {
    const std::size_t before = m_layout.beforeBlanks(at - m_layout.lineEndBefore(at));
    return at <= m_layout.textBegin() || before <= m_layout.document().body().begin;
  }

  bool endsBody(std::size_t at) const {
    const std::size_t end = m_layout.behindBlanks(at);
    return end == m_size || end >= m_layout.document().body().end;
  }

  const StringsLayout& m_layout;
  std::size_t m_size;
  std::vector<TextRange> m_removals;
};

}  // namespace

std::vector<TextReplacement> removalsOf(const std::vector<bool>& isRemoved, const StringsLayout& layout) {
  RemovedLines lines(layout);
  for (const TextRange& part : RemovedParts(isRemoved, layout).take()) lines.add(part);
  std::vector<TextReplacement> replacements;
  for (const TextRange& removal : lines.removals()) replacements.push_back({removal.begin, removal.end, {}});
  return replacements;
}

}  // namespace glossmill
