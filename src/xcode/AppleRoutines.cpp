#include "xcode/AppleRoutines.h"

#include <string>

#include "xcode/MacroRoutines.h"

namespace glossmill {

namespace {

constexpr std::string_view kFunctions[] = {
    "NSLocalizedString(key, comment)",
    "NSLocalizedStringFromTable(key, table, comment)",
    "NSLocalizedStringFromTableInBundle(key, table, bundle, comment)",
    "NSLocalizedStringWithDefaultValue(key, table, bundle, value, comment)",
    "CFCopyLocalizedString(key, comment)",
    "CFCopyLocalizedStringFromTable(key, table, comment)",
    "CFCopyLocalizedStringFromTableInBundle(key, table, bundle, comment)",
    "CFCopyLocalizedStringWithDefaultValue(key, table, bundle, value, comment)",
};
constexpr std::string_view kMessage = "localizedStringForKey(key, value, table)";

/// A routine of Swift: what its parameters are, and what they are called.
struct SwiftRoutine {
  std::string_view description;
  CallForm form;
  std::vector<std::string> labels;
};

const std::vector<SwiftRoutine>& swiftRoutines() {
  static const std::vector<SwiftRoutine> kRoutines = {
      {"NSLocalizedString(key, table, bundle, value, comment)",
       CallForm::Function,
       {"", "tableName", "bundle", "value", "comment"}},
      {"LocalizedStringResource(key, value, table, bundle, comment)",
       CallForm::Function,
       {"", "defaultValue", "table", "bundle", "comment"}},
      {"localizedString(key, value, table)", CallForm::Method, {"forKey", "value", "table"}},
      {"localized(key, value, table, bundle, comment)",
       CallForm::Constructor,
       {"localized", "defaultValue", "table", "bundle", "comment"}},
  };
  return kRoutines;
}

Routine described(std::string_view description, CallForm form) {
  Routine routine = parseRoutine(description).value();
  routine.form = form;
  return routine;
}

}  // namespace

RoutineTable routinesInC(const std::vector<Routine>& own, const std::vector<MacroDefinition>& headerMacros) {
  std::vector<Routine> routines;
  for (const std::string_view function : kFunctions) routines.push_back(described(function, CallForm::Function));
  routines.push_back(described(kMessage, CallForm::Message));
  routines.insert(routines.end(), own.begin(), own.end());
  RoutineTable table(routines);
  std::vector<Routine> macros = macroRoutines(headerMacros, table);
  if (macros.empty()) return table;
  routines.insert(routines.end(), macros.begin(), macros.end());
  return RoutineTable(std::move(routines));
}

RoutineTable routinesInSwift(const std::vector<Routine>& own) {
  std::vector<Routine> routines;
  for (const SwiftRoutine& apple : swiftRoutines()) {
    Routine routine = described(apple.description, apple.form);
    routine.labelRule = LabelRule::Apple;
    routine.labels = apple.labels;
    routines.push_back(std::move(routine));
  }
  for (const Routine& routine : own) {
    routines.push_back(routine);
    routines.back().labelRule = LabelRule::Own;
  }
  return RoutineTable(std::move(routines));
}

}  // namespace glossmill
