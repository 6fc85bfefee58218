#include "xcode/CallInterpreter.h"

#include <algorithm>

#include "text/Utf16.h"
#include "text/Utf8.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

using Kind = Argument::Kind;

constexpr std::size_t kCallExcerptUnits = 60;

template <typename Item>
void sortAndPlace(std::string_view text, std::vector<Item>& items) {
  const auto isBefore = [](const Item& a, const Item& b) { return a.offset < b.offset; };
  if (!std::is_sorted(items.begin(), items.end(), isBefore)) std::stable_sort(items.begin(), items.end(), isBefore);
  PlaceCounter counter(text);
  for (Item& item : items) item.place = counter.at(item.offset);
}

bool isSameText(const FoundCall& a, const FoundCall& b) {
  return a.offset == b.offset && a.key == b.key && a.table == b.table;
}

bool isSameProblem(const SourceProblem& a, const SourceProblem& b) {
  return a.offset == b.offset && a.kind == b.kind && a.text == b.text;
}

/// Adds an item unless it is among those of the same call, which are the last ones.
template <typename Item>
void addOnce(std::vector<Item>& items, Item item, bool (*isSame)(const Item&, const Item&)) {
  for (auto other = items.rbegin(); other != items.rend() && other->offset == item.offset; ++other) {
    if (isSame(*other, item)) return;
  }
  items.push_back(std::move(item));
}

}  // namespace

std::string_view nameOf(CallProblem kind) {
  switch (kind) {
    case CallProblem::KeyMissing:
      return "key-missing";
    case CallProblem::KeyNotLiteral:
      return "key-not-literal";
    case CallProblem::TableNotLiteral:
      return "table-not-literal";
    case CallProblem::Interpolation:
      return "interpolation";
    case CallProblem::MalformedLiteral:
      return "malformed-literal";
    case CallProblem::NotClosed:
      return "call-not-closed";
  }
  return "";
}

void CallInterpreter::take(const ParsedCall& parsed, const Routine& routine, const MacroHead* macro) {
  const Call call{parsed, routine, macro};
  if (!isCall(call)) return;
  if (!parsed.closed) {
    report(call, CallProblem::NotClosed, "The call has no closing parenthesis");
    return;
  }
  for (const Lookup& lookup : routine.lookups) takeLookup(call, lookup);
}

void CallInterpreter::takeLookup(const Call& call, const Lookup& lookup) {
  const bool handsOnKey = handsOn(call, argumentOf(call, lookup.key));
  const bool handsOnTable = handsOn(call, argumentOf(call, lookup.table));
  std::optional<std::string> key = handsOnKey ? std::nullopt : keyOf(call, argumentOf(call, lookup.key));
  std::optional<std::string> table = handsOnTable ? std::nullopt : tableOf(call, lookup.table);
  if (!key || !table) return;
  FoundCall found{call.parsed.at,
                  {},
                  *std::move(key),
                  *std::move(table),
                  defaultValueOf(call, lookup.defaultValue),
                  commentOf(call, lookup.comment)};
  addOnce(m_found.calls, std::move(found), isSameText);
}

/// Says whether the labels are those of the routine and nobody declares it here.
bool CallInterpreter::isCall(const Call& call) const {
  const Routine& routine = call.routine;
  const std::span<const Argument> arguments = call.parsed.arguments;
  const std::string_view firstLabel = labelOf(arguments.front());
  switch (routine.form) {
    case CallForm::Message:
      return true;
    case CallForm::Constructor:
      return firstLabel == routine.labels.front();
    case CallForm::Method:
      return arguments.size() == routine.labels.size() &&
             std::equal(
                 arguments.begin(), arguments.end(), routine.labels.begin(),
                 [this](const Argument& argument, const std::string& label) { return labelOf(argument) == label; });
    case CallForm::Function:
      break;
  }
  if (routine.labelRule == LabelRule::Apple) return firstLabel.empty();
  return routine.labelRule == LabelRule::Own || argumentOf(call, routine.lookups.front().key).kind != Kind::Declaration;
}

std::string_view CallInterpreter::labelOf(const Argument& argument) const {
  return m_text.substr(argument.labelBegin, argument.labelEnd - argument.labelBegin);
}

Argument CallInterpreter::argumentOf(const Call& call, std::size_t parameter) const {
  if (call.routine.labelRule != LabelRule::Positions) return labelledArgumentOf(call, parameter);
  return parameter < call.parsed.arguments.size() ? call.parsed.arguments[parameter] : Argument();
}

Argument CallInterpreter::argumentOf(const Call& call, const TextSource& source) const {
  return source.kind == TextSource::Kind::Argument ? argumentOf(call, source.argument) : Argument();
}

Argument CallInterpreter::labelledArgumentOf(const Call& call, std::size_t parameter) const {
  const std::vector<std::string>& labels = call.routine.labels;
  const std::span<const Argument> arguments = call.parsed.arguments;
  const auto hasLabel = [this, &label = labels[parameter]](const Argument& argument) {
    return labelOf(argument) == label;
  };
  const auto found = std::find_if(arguments.begin(), arguments.end(), hasLabel);
  if (found != arguments.end()) return *found;
  if (call.routine.labelRule == LabelRule::Apple || parameter >= arguments.size()) return {};
  const std::string_view label = labelOf(arguments[parameter]);
  const bool isOthers = std::find(labels.begin(), labels.end(), label) != labels.end();
  return isOthers ? Argument() : arguments[parameter];
}

bool CallInterpreter::handsOn(const Call& call, const Argument& argument) const {
  if (!call.macro || argument.kind != Kind::Word) return false;
  return call.macro->find(withoutContinuations(m_text.substr(argument.begin, argument.end - argument.begin)))
      .has_value();
}

std::optional<std::string> CallInterpreter::keyOf(const Call& call, const Argument& argument) {
  switch (argument.kind) {
    case Kind::Literal:
    case Kind::BrokenLiteral:
    case Kind::Interpolated:
      return literalOf(call, argument, "key");
    case Kind::Missing:
      report(call, CallProblem::KeyMissing, "The call has no key");
      return std::nullopt;
    default:
      report(call, CallProblem::KeyNotLiteral, "The key is no literal: " + excerptOf(argument));
      return std::nullopt;
  }
}

std::optional<std::string> CallInterpreter::tableOf(const Call& call, const TextSource& source) {
  const auto orLocalizable = [](const std::string& table) { return table.empty() ? std::string(kLocalizable) : table; };
  if (source.kind == TextSource::Kind::Fixed) return orLocalizable(*source.text);
  const Argument argument = argumentOf(call, source);
  switch (argument.kind) {
    case Kind::Missing:
    case Kind::Nothing:
      return std::string(kLocalizable);
    case Kind::Literal:
    case Kind::BrokenLiteral:
    case Kind::Interpolated: {
      const std::optional<std::string> table = literalOf(call, argument, "table");
      return table ? std::optional(orLocalizable(*table)) : std::nullopt;
    }
    default:
      report(call, CallProblem::TableNotLiteral, "The table is no literal: " + excerptOf(argument));
      return std::nullopt;
  }
}

std::optional<std::string> CallInterpreter::defaultValueOf(const Call& call, const TextSource& source) {
  const Argument argument = argumentOf(call, source);
  std::optional<std::string> value;
  if (source.kind == TextSource::Kind::Fixed) value = *source.text;
  if (argument.kind == Kind::Literal || argument.kind == Kind::BrokenLiteral || argument.kind == Kind::Interpolated) {
    value = literalOf(call, argument, "default value");
  }
  return value && !value->empty() ? value : std::nullopt;
}

std::optional<std::string> CallInterpreter::literalOf(const Call& call, const Argument& argument,
                                                      std::string_view what) {
  const std::string subject = "The " + std::string(what);
  if (argument.kind == Kind::Interpolated) {
    report(call, CallProblem::Interpolation, subject + " holds an interpolation: " + excerptOf(argument));
    return std::nullopt;
  }
  const Result<std::string> value = m_readLiteral(m_text.substr(argument.begin, argument.end - argument.begin));
  if (value) return value.value();
  report(call, CallProblem::MalformedLiteral, subject + " is malformed: " + value.error().sentence);
  return std::nullopt;
}

/// A comment that cannot be read is none; nobody needs to know.
std::optional<std::string> CallInterpreter::commentOf(const Call& call, const TextSource& source) const {
  if (source.kind == TextSource::Kind::Fixed) return *source.text;
  const Argument argument = argumentOf(call, source);
  if (argument.kind != Kind::Literal) return std::nullopt;
  const Result<std::string> value = m_readLiteral(m_text.substr(argument.begin, argument.end - argument.begin));
  return value ? std::optional(value.value()) : std::nullopt;
}

void CallInterpreter::report(const Call& call, CallProblem kind, std::string text) {
  addOnce(m_found.problems, SourceProblem{call.parsed.at, {}, kind, std::move(text)}, isSameProblem);
}

/// The beginning of the argument, on one line.
std::string CallInterpreter::excerptOf(const Argument& argument) const {
  constexpr std::size_t kMostBytes = 8 * kCallExcerptUnits;
  const std::size_t length = std::min(argument.end - argument.begin, kMostBytes);
  std::string_view source = m_text.substr(argument.begin, length);
  source = source.substr(0, validUtf8Prefix(source));
  std::string excerpt;
  for (const char byte : source) {
    const bool isSpace = isBlank(byte) || isLineEnd(byte);
    if (!isSpace || !excerpt.ends_with(' ')) excerpt += isSpace ? ' ' : byte;
  }
  return clipUtf16(excerpt, kCallExcerptUnits);
}

SourceCalls CallInterpreter::finish() {
  sortAndPlace(m_text, m_found.calls);
  sortAndPlace(m_text, m_found.problems);
  return std::move(m_found);
}

}  // namespace glossmill
