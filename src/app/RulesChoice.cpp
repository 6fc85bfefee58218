#include "app/RulesChoice.h"

namespace glossmill {

namespace {

void tell(const Host& host, const Error& error) {
  AlertRequest alert;
  alert.message = error.sentence;
  alert.defaultButton = host.bundle.localizedString("Ok");
  host.panels.runAlert(alert);
}

}  // namespace

/// Under the classic rules a package would be a directory without a project; what it belongs to is meant.
void chooseRules(const Host& host, ProjectWindowController& project, RuleSet rules, const RulesKeeper& keeper) {
  if (!project.opened() || project.projectOptions().rules == rules) return;
  const bool maySo = project.changed() ? project.settleChanges() : project.mayReadAnew();
  if (!maySo) return;
  const Outcome kept = keeper ? keeper(project, rules) : Outcome(Done{});
  if (!kept) return tell(host, kept.error());
  project.readAnew(rules == RuleSet::Classic ? project.projectDirectory() : project.openedAs());
}

}  // namespace glossmill
