#include "xcode/Routine.h"

#include <algorithm>

#include "text/Split.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::vector<Routine> withoutRepetitions(std::vector<Routine> routines) {
  KeyIndex names;
  std::erase_if(routines, [&names](const Routine& routine) { return !names.add(routine.name).second; });
  return routines;
}

std::vector<std::string> namesOf(const std::vector<Routine>& routines) {
  std::vector<std::string> names;
  for (const Routine& routine : routines) names.push_back(routine.name);
  return names;
}

bool isName(std::string_view text) {
  return !text.empty() && !isDigit(text.front()) && plainWordEnd(text, 0) == text.size();
}

std::vector<std::string> parametersIn(std::string_view list) {
  std::vector<std::string> parameters;
  for (const std::string_view parameter : split(list, ',')) parameters.emplace_back(trimmed(parameter));
  return parameters;
}

/// What is wrong with the names of parameters.
Outcome checkParameters(const std::vector<std::string>& parameters) {
  constexpr std::string_view kKnown[] = {"key", "table", "value", "comment", "bundle", "_"};
  for (const std::string& parameter : parameters) {
    if (std::find(std::begin(kKnown), std::end(kKnown), parameter) == std::end(kKnown)) {
      return Error{"The parameter \"" + parameter + "\" is none of key, table, value, comment, bundle and _"};
    }
    if (parameter != "_" && std::count(parameters.begin(), parameters.end(), parameter) > 1) {
      return Error{"The parameter \"" + parameter + "\" stands there twice"};
    }
  }
  if (std::count(parameters.begin(), parameters.end(), "key") == 0) return Error{"No parameter is the key"};
  return Done{};
}

TextSource sourceOf(const std::vector<std::string>& parameters, std::string_view name) {
  const auto found = std::find(parameters.begin(), parameters.end(), name);
  if (found == parameters.end()) return {};
  return {TextSource::Kind::Argument, static_cast<std::size_t>(found - parameters.begin()), nullptr};
}

}  // namespace

bool TextSource::operator==(const TextSource& other) const {
  if (kind != other.kind || argument != other.argument) return false;
  return text == other.text || (text && other.text && *text == *other.text);
}

Result<Routine> parseRoutine(std::string_view description) {
  description = trimmed(description);
  const std::size_t opening = description.find('(');
  const std::string_view name = trimmed(description.substr(0, opening));
  if (opening == std::string_view::npos || !description.ends_with(')') || !isName(name)) {
    return Error{"A routine is written with its parameters, as in MyString(key, comment)"};
  }
  const std::vector<std::string> parameters =
      parametersIn(description.substr(opening + 1, description.size() - opening - 2));
  const Outcome checked = checkParameters(parameters);
  if (!checked) return checked.error();
  Routine routine;
  routine.name = name;
  routine.labels = parameters;
  routine.lookups.push_back({sourceOf(parameters, "key").argument, sourceOf(parameters, "table"),
                             sourceOf(parameters, "value"), sourceOf(parameters, "comment")});
  return routine;
}

RoutineTable::RoutineTable(std::vector<Routine> routines)
    : m_routines(withoutRepetitions(std::move(routines))), m_search(namesOf(m_routines)) {}

const Routine* RoutineTable::find(std::string_view name) const {
  const std::optional<std::size_t> place = m_search.find(name);
  return place ? &m_routines[*place] : nullptr;
}

}  // namespace glossmill
