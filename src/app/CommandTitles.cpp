#include "app/CommandTitles.h"

#include "app/AppDelegate.h"
#include "text/Format.h"

namespace glossmill {

namespace {

/// Empty for a step through several languages.
std::string languageOf(const HistoryStep& step, const ProjectWindowController& project) {
  if (!step.language) return {};
  for (const std::shared_ptr<Language>& language : *project.languagesList()) {
    if (language->code() == *step.language) return language->description().value_or(language->iso639());
  }
  return step.language->text();
}

std::string undoTitle(const HistoryStep& step, const std::string& language, const Bundle& bundle) {
  switch (step.kind) {
    case EditKind::Typing:
    case EditKind::TypingBack:
      return bundle.localizedString("&Undo Typing");
    case EditKind::Import:
      return formatText(bundle.localizedString("&Undo Import of %@"), {language});
    case EditKind::Fill:
      return formatText(bundle.localizedString("&Undo Filling of %@"), {language});
    case EditKind::Replacement:
      return bundle.localizedString("&Undo Replacement");
    case EditKind::Removal:
      return bundle.localizedString("&Undo Removal of Unused Entries");
    case EditKind::Recovery:
      return bundle.localizedString("&Undo Recovery");
    case EditKind::Undo:
      break;
  }
  return bundle.localizedString("&Undo");
}

std::string redoTitle(const HistoryStep& step, const std::string& language, const Bundle& bundle) {
  switch (step.kind) {
    case EditKind::Typing:
    case EditKind::TypingBack:
      return bundle.localizedString("&Redo Typing");
    case EditKind::Import:
      return formatText(bundle.localizedString("&Redo Import of %@"), {language});
    case EditKind::Fill:
      return formatText(bundle.localizedString("&Redo Filling of %@"), {language});
    case EditKind::Replacement:
      return bundle.localizedString("&Redo Replacement");
    case EditKind::Removal:
      return bundle.localizedString("&Redo Removal of Unused Entries");
    case EditKind::Recovery:
      return bundle.localizedString("&Redo Recovery");
    case EditKind::Undo:
      break;
  }
  return bundle.localizedString("&Redo");
}

}  // namespace

std::string commandTitle(const AppDelegate& application, const Command& command, const Bundle& bundle) {
  const ProjectWindowController* project = application.projectWindowController();
  if (project && command.id == CommandId::Undo && project->canUndo()) {
    return undoTitle(*project->undoStep(), languageOf(*project->undoStep(), *project), bundle);
  }
  if (project && command.id == CommandId::Redo && project->canRedo()) {
    return redoTitle(*project->redoStep(), languageOf(*project->redoStep(), *project), bundle);
  }
  if (project && command.id == CommandId::ProjectWindow && project->canSaveAll()) {
    return bundle.localizedString("&Project Window (Not Saved)");
  }
  return bundle.localizedString(command.title);
}

}  // namespace glossmill
