#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "xcode/StringsDocument.h"

namespace glossmill {

/// A part of a text, in bytes.
struct TextRange {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool empty() const { return begin == end; }
};

/// What stands around the entries of a strings file without a mistake: white space, lines, comments. Comments touch
/// when no blank line stands between them.
class StringsLayout {
 public:
  /// `document` outlives this.
  explicit StringsLayout(const StringsDocument& document) : m_document(document), m_text(document.text()) {}

  const StringsDocument& document() const { return m_document; }

  /// Between an entry and the one in front of it; behind the last one, for the number of entries.
  TextRange gapBefore(std::size_t entry) const;
  /// In a part of a gap that begins and ends outside of comments.
  std::vector<TextRange> commentsIn(TextRange gap) const;
  /// The comments directly in front of an entry that touch it and one another, but for those that begin on the line of
  /// the entry in front. Empty, in front of the entry, when there are none.
  TextRange attachedComments(std::size_t entry) const;
  /// What the attached comments say: without their marks and the white space around, one line a comment.
  std::string commentOf(std::size_t entry) const;
  /// The comment lines that a file begins with, set off from the rest by a blank line; empty when it does not.
  TextRange header() const;

  /// How many blank lines stand directly in front of an entry and its attached comments.
  std::size_t blankLinesBefore(std::size_t entry) const;
  /// Nothing stands behind an entry on its line but comments.
  bool endsLine(std::size_t entry) const;
  /// An entry begins on the line where the one in front of it ends.
  bool continuesLine(std::size_t entry) const;

  /// Behind the blanks and tabs at `at`; in front of those in front of `at`.
  std::size_t behindBlanks(std::size_t at) const;
  std::size_t beforeBlanks(std::size_t at) const;
  /// The length of the line end at `at`, or of the one directly in front of it; 0 when there is none.
  std::size_t lineEndAt(std::size_t at) const;
  std::size_t lineEndBefore(std::size_t at) const;
  std::size_t lineEndsIn(TextRange range) const;
  bool isLineStart(std::size_t at) const { return at <= textBegin() || lineEndBefore(at) != 0; }
  /// Behind the byte-order marks.
  std::size_t textBegin() const;

  /// Behind an entry, the comments that begin on the line where it ends, and blanks.
  std::size_t endWithComments(std::size_t entry) const;
  /// The first line end, or the end of the range.
  std::size_t firstLineEndIn(TextRange range) const;
  /// Behind the last line end, or the beginning of the range.
  std::size_t lastLineStartIn(TextRange range) const;

 private:
  std::size_t endOfComment(std::size_t at) const;

  const StringsDocument& m_document;
  std::string_view m_text;
};

}  // namespace glossmill
