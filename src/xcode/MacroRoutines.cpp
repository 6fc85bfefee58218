#include "xcode/MacroRoutines.h"

#include <algorithm>
#include <deque>

#include "model/KeyIndex.h"
#include "xcode/CLexer.h"
#include "xcode/CLiteral.h"
#include "xcode/CallParser.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostLookups = 16;

/// An argument of a call in a macro's replacement; nothing when the macro's calls do not tell what it is.
using HandedOn = std::optional<TextSource>;

/// A call in a macro's replacement.
struct InnerCall {
  std::size_t macro = 0;  ///< the number of the macro's name
  std::vector<HandedOn> arguments;
  std::optional<std::size_t> rest;     ///< the first argument that stands for all further ones of the macro
  std::size_t firstOfRest = 0;         ///< which parameter that is
  std::optional<std::size_t> comment;  ///< the macro's parameter of that name
};

/// A lookup that was found, and the name whose calls have it.
struct NewLookup {
  std::size_t name = 0;
  Lookup lookup;
};

class MacroResolver {
 public:
  MacroResolver(const std::vector<MacroDefinition>& macros, const RoutineTable& known);
  std::vector<Routine> resolve();

 private:
  void addKnown(const RoutineTable& known);
  void readReplacement(const MacroDefinition& macro);
  void addCall(const MacroDefinition& macro, const ParsedCall& call);
  HandedOn handedOn(const MacroDefinition& macro, const Argument& argument) const;
  void addLookup(std::size_t name, const Lookup& lookup);

  KeyIndex m_names;  ///< of all routines and macros
  std::vector<CallForm> m_forms;
  std::vector<bool> m_isFixed;                  ///< by name: no macro changes what it means
  std::vector<std::vector<InnerCall>> m_calls;  ///< by the name that they call
  std::vector<std::vector<Lookup>> m_lookups;   ///< by the name of the macro
  std::deque<NewLookup> m_new;
};

/// What the call gives as its argument of this number.
HandedOn argumentOf(const InnerCall& call, std::size_t number) {
  if (call.rest && number >= *call.rest) {
    return TextSource{TextSource::Kind::Argument, call.firstOfRest + number - *call.rest, nullptr};
  }
  return number < call.arguments.size() ? call.arguments[number] : TextSource{};
}

HandedOn sourceIn(const InnerCall& call, const TextSource& source) {
  return source.kind == TextSource::Kind::Argument ? argumentOf(call, source.argument) : source;
}

/// The lookup of a macro whose replacement makes this call of a routine with that lookup.
std::optional<Lookup> lookupThrough(const InnerCall& call, const Lookup& inner) {
  const HandedOn key = argumentOf(call, inner.key);
  const HandedOn table = sourceIn(call, inner.table);
  if (!key || key->kind != TextSource::Kind::Argument || !table) return std::nullopt;
  Lookup lookup;
  lookup.key = key->argument;
  lookup.table = *table;
  lookup.defaultValue = sourceIn(call, inner.defaultValue).value_or(TextSource{});
  lookup.comment = sourceIn(call, inner.comment).value_or(TextSource{});
  if (lookup.comment.kind == TextSource::Kind::None && call.comment) {
    lookup.comment = {TextSource::Kind::Argument, *call.comment, nullptr};
  }
  return lookup;
}

MacroResolver::MacroResolver(const std::vector<MacroDefinition>& macros, const RoutineTable& known) {
  for (const Routine& routine : known.routines()) {
    m_names.add(routine.name);
    m_forms.push_back(routine.form);
    m_isFixed.push_back(!routine.isMacro);
  }
  for (const MacroDefinition& macro : macros) m_names.add(macro.head.name);
  m_forms.resize(m_names.size(), CallForm::Function);
  m_isFixed.resize(m_names.size(), false);
  m_calls.resize(m_names.size());
  m_lookups.resize(m_names.size());
  for (const MacroDefinition& macro : macros) readReplacement(macro);
  std::vector<bool> isDefined(m_names.size(), false);
  for (const MacroDefinition& macro : macros) isDefined[*m_names.find(macro.head.name)] = true;
  for (std::size_t name = 0; name < known.routines().size(); ++name) {
    const Routine& routine = known.routines()[name];
    if (routine.isMacro && isDefined[name]) continue;
    for (const Lookup& lookup : routine.lookups) m_new.push_back({name, lookup});
  }
}

void MacroResolver::readReplacement(const MacroDefinition& macro) {
  const std::string_view text = macro.replacement;
  CallParser parser(text, SourceLanguage::CFamily, [this, &macro](const ParsedCall& call) { addCall(macro, call); });
  CLexer lexer(text, 0, CLexer::Directives::Marks);
  for (SourceToken token = lexer.next(); token.kind != SourceToken::Kind::End; token = lexer.next()) {
    std::optional<KeyIndex::Number> name;
    if (token.kind == SourceToken::Kind::Word) {
      name = m_names.find(text.substr(token.begin, token.end - token.begin));
    }
    if (name) {
      parser.takeName(token, {*name, m_forms[*name]});
    } else {
      parser.take(token);
    }
  }
}

void MacroResolver::addCall(const MacroDefinition& macro, const ParsedCall& call) {
  if (!call.closed) return;
  InnerCall inner;
  inner.macro = *m_names.find(macro.head.name);
  inner.comment = macro.head.find("comment");
  for (const Argument& argument : call.arguments) {
    const HandedOn handed = handedOn(macro, argument);
    const bool isParameter = handed && handed->kind == TextSource::Kind::Argument;
    if (isParameter && macro.head.isVariadic && handed->argument + 1 == macro.head.parameters.size()) {
      inner.rest = inner.arguments.size();
      inner.firstOfRest = handed->argument;
      break;
    }
    inner.arguments.push_back(handed);
  }
  m_calls[call.routine].push_back(std::move(inner));
}

HandedOn MacroResolver::handedOn(const MacroDefinition& macro, const Argument& argument) const {
  const std::string_view source =
      std::string_view(macro.replacement).substr(argument.begin, argument.end - argument.begin);
  switch (argument.kind) {
    case Argument::Kind::Missing:
    case Argument::Kind::Nothing:
      return TextSource{};
    case Argument::Kind::Literal: {
      const Result<std::string> value = cLiteralValue(source);
      if (!value) return std::nullopt;
      return TextSource{TextSource::Kind::Fixed, 0, std::make_shared<const std::string>(value.value())};
    }
    case Argument::Kind::Word: {
      const std::optional<std::size_t> parameter = macro.head.find(source);
      if (!parameter) return std::nullopt;
      return TextSource{TextSource::Kind::Argument, *parameter, nullptr};
    }
    default:
      return std::nullopt;
  }
}

void MacroResolver::addLookup(std::size_t name, const Lookup& lookup) {
  std::vector<Lookup>& lookups = m_lookups[name];
  const bool isKnown = std::find(lookups.begin(), lookups.end(), lookup) != lookups.end();
  if (m_isFixed[name] || isKnown || lookups.size() == kMostLookups) return;
  lookups.push_back(lookup);
  m_new.push_back({name, lookup});
}

std::vector<Routine> MacroResolver::resolve() {
  while (!m_new.empty()) {
    const NewLookup found = std::move(m_new.front());
    m_new.pop_front();
    for (const InnerCall& call : m_calls[found.name]) {
      const std::optional<Lookup> lookup = lookupThrough(call, found.lookup);
      if (lookup) addLookup(call.macro, *lookup);
    }
  }
  std::vector<Routine> routines;
  for (KeyIndex::Number name = 0; name < m_names.size(); ++name) {
    if (m_lookups[name].empty()) continue;
    Routine routine;
    routine.name = m_names.key(name);
    routine.lookups = m_lookups[name];
    routine.isMacro = true;
    routines.push_back(std::move(routine));
  }
  return routines;
}

bool holdName(const std::vector<MacroDefinition>& macros, const NameSearch& names) {
  return std::any_of(macros.begin(), macros.end(), [&names](const MacroDefinition& macro) {
    return names.next(macro.replacement, 0).begin < macro.replacement.size();
  });
}

}  // namespace

std::vector<Routine> macroRoutines(const std::vector<MacroDefinition>& macros, const RoutineTable& known) {
  if (!holdName(macros, known.search())) return {};
  return MacroResolver(macros, known).resolve();
}

}  // namespace glossmill
