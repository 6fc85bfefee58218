#include "checks/CheckList.h"

#include <algorithm>
#include <iterator>

namespace glossmill {

namespace {

constexpr CheckEntry kChecks[] = {
    {Check::Missing, "missing", Severity::Error, "There is no translation, or an empty one.", R"("Open" = "";)"},
    {Check::Format, "format", Severity::Error, "The format specifiers differ from the source text's.",
     R"("%d files" = "%@ Dateien";)"},
    {Check::NotKept, "not-kept", Severity::Error, "The text would not be read back as it is after saving.",
     R"("Say" = "Sag "ja"";)"},
    {Check::Malformed, "malformed", Severity::Error, "A file or a line of it could not be read.",
     R"("Open" "Öffnen";)"},
    {Check::Duplicate, "duplicate", Severity::Warning, "A file holds the key more than once.",
     R"("Open" = "Öffnen"; "Open" = "Auf";)"},
    {Check::WhiteSpace, "white-space", Severity::Warning,
     "White space at the ends, or line breaks inside, differ from the source text's.", R"("Name: " = "Name:";)"},
    {Check::Invisible, "invisible", Severity::Warning, "The text holds characters that nobody sees.",
     R"("Open" = "Öff<U+0007>nen";)"},
    {Check::Punctuation, "punctuation", Severity::Info, "The closing mark is of another kind than the source text's.",
     R"("Sure?" = "Sicher.";)"},
    {Check::Identical, "identical", Severity::Info, "The translation is the source text.",
     R"("Open file" = "Open file";)"},
    {Check::Unused, "unused", Severity::Info, "No source names the entry.", R"("Former key" = "Früher";)"},
    {Check::Inconsistent, "inconsistent", Severity::Info,
     "The same source text is translated in another way elsewhere.", R"("Open" = "Öffnen"; "open.title" = "Auf";)"},
    {Check::NotLiteral, "not-literal", Severity::Info, "A call could not be taken, or its key is no literal.",
     "NSLocalizedString(title, nil)"},
};

struct Sentence {
  FindingKind kind;
  std::string_view text;
};

constexpr Sentence kSentences[] = {
    {FindingKind::NoTranslation, "There is no translation."},
    {FindingKind::EmptyTranslation, "The translation is empty."},
    {FindingKind::ArgumentMissing, "“%@” of the source text is missing."},
    {FindingKind::ArgumentSurplus, "“%@” takes an argument that the source text does not have."},
    {FindingKind::ArgumentSkipped, "“%@” of the source text is left out in front of an argument that is used."},
    {FindingKind::ArgumentOfOtherType, "“%@” takes another type than “%@” of the source text."},
    {FindingKind::ArgumentOfOtherSize, "“%@” takes a number of another size than “%@” of the source text."},
    {FindingKind::PositionsMixed, "“%@”: specifiers with a position and without one are mixed."},
    {FindingKind::StraySign, "“%@” is no format specifier: a percent sign has to be doubled here."},
    {FindingKind::KeyNotKept,
     "The key would not be read back as it is: it holds a quote, a line break or a slash pair."},
    {FindingKind::TextNotKept, "The text would not be read back as it is after saving."},
    {FindingKind::WhiteSpaceInFront, "The white space in front differs from the source text's."},
    {FindingKind::WhiteSpaceBehind, "The white space at the end differs from the source text's."},
    {FindingKind::LineBreaks, "The number of line breaks differs from the source text's."},
    {FindingKind::ControlCharacter, "The text holds the control character %@."},
    {FindingKind::DirectionLeftOpen, "The direction that %@ begins is not ended."},
    {FindingKind::ReplacementCharacter, "The text holds %@, which stands for a character that was lost."},
    {FindingKind::NoBreakSpace, "The no-break space %@ stands where the source text has a blank."},
    {FindingKind::OtherClosingMark, "The text ends with “%@”, the source text with “%@”."},
    {FindingKind::SameAsSource, "The translation is the source text."},
    {FindingKind::OtherTranslationElsewhere, "The same source text is “%@” elsewhere."},
    {FindingKind::RepeatedKey, "The key stands on line %@ already, with the same text."},
    {FindingKind::RepeatedKeyOtherText, "The key stands on line %@ already, with another text; the last one counts."},
    {FindingKind::UnusedEntry, "No source names the entry."},
    {FindingKind::ReportedProblem, "%@"},
};

struct SeverityName {
  Severity severity;
  std::string_view name;
};

constexpr SeverityName kSeverities[] = {
    {Severity::Info, "info"}, {Severity::Warning, "warning"}, {Severity::Error, "error"}};

}  // namespace

std::span<const CheckEntry> checkList() {
  return kChecks;
}

const CheckEntry& entryOf(Check check) {
  return kChecks[static_cast<std::size_t>(check)];
}

std::optional<Check> checkNamed(std::string_view name) {
  const auto entry = std::ranges::find(kChecks, name, &CheckEntry::name);
  return entry == std::end(kChecks) ? std::nullopt : std::optional(entry->check);
}

std::string_view nameOf(Severity severity) {
  return std::ranges::find(kSeverities, severity, &SeverityName::severity)->name;
}

std::optional<Severity> severityNamed(std::string_view name) {
  const auto entry = std::ranges::find(kSeverities, name, &SeverityName::name);
  return entry == std::end(kSeverities) ? std::nullopt : std::optional(entry->severity);
}

std::string_view sentenceOf(FindingKind kind) {
  return std::ranges::find(kSentences, kind, &Sentence::kind)->text;
}

}  // namespace glossmill
