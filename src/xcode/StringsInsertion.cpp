#include "xcode/StringsInsertion.h"

#include <optional>
#include <unordered_set>
#include <utility>

#include "xcode/StringsStyle.h"

namespace glossmill {

namespace {

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

/// Writes new entries beside those of a file.
class Insertions {
 public:
  explicit Insertions(const StringsLayout& layout) : m_layout(layout) {}

  Outcome add(const NewStringsEntry& entry, const StringsPlace& place);
  std::vector<TextReplacement> take() { return std::move(m_replacements); }

 private:
  const StringsEntry& entryAt(const StringsPlace& place) const { return m_layout.document().entries()[place.entry]; }
  void insert(std::size_t at, std::string text) { m_replacements.push_back({at, at, std::move(text)}); }

  /// What stands around a place: looking at it takes as long as the comments there.
  struct Spot {
    std::size_t entry = 0;
    StringsPlace::Side side = StringsPlace::Side::Alone;
    StringsStyle style;
    bool isInLine = false;
    std::size_t line = 0;  ///< where new lines go
  };

  const Spot& spotOf(const StringsPlace& place);
  bool isInLine(const StringsPlace& place) const;
  std::size_t lineInFront(std::size_t entry) const;
  void insertInLine(const StringsPlace& place, const std::string& text);
  void insertLines(const StringsPlace& place, const Spot& spot, const std::string& text);

  const StringsLayout& m_layout;
  std::optional<Spot> m_spot;
  std::unordered_set<std::size_t> m_completed;  ///< entries that got their semicolon
  std::vector<TextReplacement> m_replacements;
};

Outcome Insertions::add(const NewStringsEntry& entry, const StringsPlace& place) {
  const Spot& spot = spotOf(place);
  const Result<std::string> text = spot.style.entry(entry.key, entry.value, entry.comment);
  if (!text) return text.error();
  const bool isBehind = place.side == StringsPlace::Side::Behind;
  if (isBehind && !entryAt(place).hasSemicolon && m_completed.insert(place.entry).second) {
    insert(entryAt(place).end, ";");
  }
  if (spot.isInLine) {
    insertInLine(place, text.value());
  } else {
    insertLines(place, spot, text.value());
  }
  return Done{};
}

/// The last one is kept: it is asked for again while new entries follow one another.
const Insertions::Spot& Insertions::spotOf(const StringsPlace& place) {
  if (m_spot && m_spot->entry == place.entry && m_spot->side == place.side) return *m_spot;
  const bool isBehind = place.side == StringsPlace::Side::Behind;
  const bool inLine = isInLine(place);
  const std::size_t line = isBehind ? m_layout.endWithComments(place.entry) : lineInFront(place.entry);
  m_spot = Spot{place.entry, place.side, styleAround(m_layout, place.entry), inLine, line};
  if (inLine) m_spot->style.comments = StringsStyle::Comments::None;
  return *m_spot;
}

/// True when something stands where a line of its own would begin or end.
bool Insertions::isInLine(const StringsPlace& place) const {
  if (place.side == StringsPlace::Side::InFront) return !m_layout.isLineStart(lineInFront(place.entry));
  return !m_layout.endsLine(place.entry) || m_layout.continuesLine(place.entry);
}

std::size_t Insertions::lineInFront(std::size_t entry) const {
  return m_layout.beforeBlanks(m_layout.attachedComments(entry).begin);
}

void Insertions::insertInLine(const StringsPlace& place, const std::string& text) {
  if (place.side == StringsPlace::Side::Behind) {
    insert(entryAt(place).end, " " + text);
  } else {
    insert(entryAt(place).begin, text + " ");
  }
}

void Insertions::insertLines(const StringsPlace& place, const Spot& spot, const std::string& text) {
  const std::string lineEnds = repeated(spot.style.lineEnd, spot.style.blankLines + 1);
  if (place.side == StringsPlace::Side::Behind) {
    insert(spot.line, lineEnds + spot.style.indentation + text);
  } else {
    insert(spot.line, spot.style.indentation + text + lineEnds);
  }
}

StringsStyle styleOfEmptyFile(const StringsDocument& document, const StringsDocument* development) {
  const bool hasModel = development && !development->error() && !development->entries().empty() &&
                        development->body().syntax == document.body().syntax;
  if (!hasModel) return emptyStyle(document);
  // One in the middle: the first ones may belong to a header.
  StringsStyle style = styleAround(StringsLayout(*development), development->entries().size() / 2);
  style.lineEnd = document.lineEnd();
  if (style.syntax == StringsSyntax::Words) style.indentation.clear();
  return style;
}

/// The lines of all entries of a file that has none, but for the end of the last one.
Result<std::string> allLines(const std::vector<NewStringsEntry>& entries, const std::vector<StringsPlace>& places,
                             const StringsStyle& style) {
  std::string all;
  for (const StringsPlace& place : places) {
    const NewStringsEntry& entry = entries[place.key];
    const Result<std::string> text = style.entry(entry.key, entry.value, entry.comment);
    if (!text) return text.error();
    if (!all.empty()) all += repeated(style.lineEnd, style.blankLines + 1);
    all += style.indentation + text.value();
  }
  return all;
}

/// Puts the lines into a file without entries: behind its comments, if it has any, else at the front.
TextReplacement insertionIntoEmptyFile(const StringsLayout& layout, const std::string& lineEnd,
                                       const std::string& lines) {
  const StringsDocument& document = layout.document();
  const StringsBody& body = document.body();
  if (body.isEmptyTag) return {body.begin, body.end, "<dict>" + lineEnd + lines + lineEnd + "</dict>"};
  const std::vector<TextRange> comments = layout.commentsIn(layout.gapBefore(0));
  const std::size_t at = layout.behindBlanks(comments.empty() ? body.begin : comments.back().end);
  const bool isInsideMarks = body.begin > layout.textBegin();
  const std::size_t lineEndsInFront = comments.empty() ? (isInsideMarks ? 1U : 0U) : 2U;
  const bool endsLine = layout.lineEndAt(at) != 0 && lineEndsInFront > 0;
  const bool isAtEnd = at == document.text().size() && !comments.empty();
  return {at, at, repeated(lineEnd, lineEndsInFront) + lines + (endsLine || isAtEnd ? "" : lineEnd)};
}

Result<std::vector<TextReplacement>> insertionsIntoEmptyFile(const std::vector<NewStringsEntry>& entries,
                                                             const std::vector<StringsPlace>& places,
                                                             const StringsLayout& layout,
                                                             const StringsDocument* development) {
  const StringsStyle style = styleOfEmptyFile(layout.document(), development);
  const Result<std::string> lines = allLines(entries, places, style);
  if (!lines) return lines.error();
  return std::vector{insertionIntoEmptyFile(layout, style.lineEnd, lines.value())};
}

}  // namespace

Result<std::vector<TextReplacement>> insertionsOf(const std::vector<NewStringsEntry>& entries,
                                                  const std::vector<StringsPlace>& places, const StringsLayout& layout,
                                                  const StringsDocument* development) {
  if (places.empty()) return std::vector<TextReplacement>();
  if (layout.document().entries().empty()) return insertionsIntoEmptyFile(entries, places, layout, development);
  Insertions insertions(layout);
  for (const StringsPlace& place : places) {
    const Outcome added = insertions.add(entries[place.key], place);
    if (!added) return added.error();
  }
  return insertions.take();
}

}  // namespace glossmill
