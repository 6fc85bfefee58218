#include "checks/PunctuationCheck.h"

#include <algorithm>
#include <optional>
#include <string>

#include "checks/Characters.h"

namespace glossmill {

namespace {

enum class MarkKind { Stop, Question, Exclamation, Colon, Semicolon, Comma, Ellipsis };

struct Mark {
  char32_t character;
  MarkKind kind;
};

constexpr Mark kClosingMarks[] = {
    {U'.', MarkKind::Stop},        {U'。', MarkKind::Stop},       {U'．', MarkKind::Stop},
    {U'।', MarkKind::Stop},        {U'॥', MarkKind::Stop},        {U'۔', MarkKind::Stop},
    {U'։', MarkKind::Stop},        {U'።', MarkKind::Stop},        {U'?', MarkKind::Question},
    {U'？', MarkKind::Question},   {U'؟', MarkKind::Question},    {U'\u037E', MarkKind::Question},
    {U'՞', MarkKind::Question},    {U'!', MarkKind::Exclamation}, {U'！', MarkKind::Exclamation},
    {U'՜', MarkKind::Exclamation}, {U':', MarkKind::Colon},       {U'：', MarkKind::Colon},
    {U';', MarkKind::Semicolon},   {U'；', MarkKind::Semicolon},  {U'؛', MarkKind::Semicolon},
    {U',', MarkKind::Comma},       {U'，', MarkKind::Comma},      {U'、', MarkKind::Comma},
    {U'،', MarkKind::Comma},       {U'…', MarkKind::Ellipsis},
};

/// Quotes and brackets that may stand behind the closing mark, or in front of it.
bool isClosingQuote(char32_t character) {
  constexpr std::u32string_view kQuotes = U"\"'”’“‘»«›‹„)]）」』】\\";
  return kQuotes.find(character) != std::u32string_view::npos;
}

struct ClosingMark {
  MarkKind kind;
  TextRange range;
};

bool isStop(char32_t character) {
  return character == U'.' || character == U'。';
}

/// Two full stops or more are an ellipsis.
std::optional<ClosingMark> closingMark(const std::vector<Character>& characters, bool isGreek) {
  std::size_t end = characters.size();
  while (end > 0 && (isWhiteSpace(characters[end - 1].value) || isClosingQuote(characters[end - 1].value))) --end;
  if (end == 0) return std::nullopt;
  const Character& last = characters[end - 1];
  const auto mark = std::find_if(std::begin(kClosingMarks), std::end(kClosingMarks),
                                 [&last](const Mark& one) { return one.character == last.value; });
  if (mark == std::end(kClosingMarks)) return std::nullopt;
  if (isGreek && last.value == U';') return ClosingMark{MarkKind::Question, last.range};
  if (!isStop(last.value)) return ClosingMark{mark->kind, last.range};
  std::size_t begin = end - 1;
  while (begin > 0 && isStop(characters[begin - 1].value)) --begin;
  const std::size_t first = characters[begin].range.begin;
  return ClosingMark{begin + 1 < end ? MarkKind::Ellipsis : mark->kind,
                     {first, last.range.begin + last.range.length - first}};
}

/// A glance that is enough for most texts: no mark stands at the end.
bool endsWithLetter(std::string_view text) {
  if (text.empty()) return true;
  const auto last = static_cast<unsigned char>(text.back());
  const unsigned small = last | 0x20U;
  return (small >= 'a' && small <= 'z') || (last >= '0' && last <= '9');
}

std::string textAt(std::string_view text, TextRange range) {
  return std::string(text.substr(range.begin, range.length));
}

}  // namespace

std::vector<Finding> punctuationFindings(const CheckedText& text) {
  if (endsWithLetter(text.source) || endsWithLetter(text.translation)) return {};
  const auto source = closingMark(lastCharactersOf(text.source, text.form), false);
  const auto translation =
      closingMark(lastCharactersOf(text.translation, text.form), baseOfCode(text.language) == "el");
  if (!source || !translation || source->kind == translation->kind) return {};
  return {{Check::Punctuation, Severity::Info, FindingKind::OtherClosingMark,
           textAt(text.translation, translation->range), textAt(text.source, source->range), source->range,
           translation->range}};
}

}  // namespace glossmill
