#include "app/UntranslatedSteps.h"

namespace glossmill {

namespace {

/// The rows behind the one that is selected, and those in front of it at last; it is the last one itself.
std::optional<std::size_t> nextRow(ProjectWindowController& project, bool forward) {
  const auto language = project.selectedLanguage();
  const auto& strings = project.stringController();
  const std::size_t count = strings.arrangedCount();
  if (!language || count == 0) return std::nullopt;
  const std::size_t before = forward ? count - 1 : 0;
  std::size_t row = strings.selectedRow().value_or(before);
  for (std::size_t seen = 0; seen < count; ++seen) {
    row = (row + (forward ? 1 : count - 1)) % count;
    if (strings.arrangedObject(row)->isMissing(language->code())) return row;
  }
  return std::nullopt;
}

}  // namespace

bool hasUntranslated(const ProjectWindowController& project) {
  const auto language = project.selectedLanguage();
  return language && project.missingTranslations(*language) > 0;
}

void selectNextUntranslated(ProjectWindowController& project) {
  if (const auto row = nextRow(project, true)) project.selectString(*row);
}

void selectPreviousUntranslated(ProjectWindowController& project) {
  if (const auto row = nextRow(project, false)) project.selectString(*row);
}

}  // namespace glossmill
