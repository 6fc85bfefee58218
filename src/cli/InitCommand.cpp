#include "cli/InitCommand.h"

#include <algorithm>
#include <memory>
#include <unordered_set>

#include "cli/DisplayText.h"
#include "cli/ProjectSession.h"
#include "host/Paths.h"
#include "platform/ReadText.h"
#include "settings/ProjectSettings.h"
#include "xcode/RoutineProposals.h"

namespace glossmill {

namespace {

std::ptrdiff_t depthOf(const FileUrl& url) {
  return std::count(url.path().begin(), url.path().end(), '/');
}

/// Those that were found; what they reference is found again by itself.
std::vector<std::string> foundPackages(const ProjectWindowController& project) {
  std::vector<std::string> paths;
  for (const FileUrl& package : project.packages()) {
    if (depthOf(package) != depthOf(project.packages().front())) continue;
    paths.emplace_back(shownPath(project.projectDirectory(), package));
  }
  return paths;
}

/// The routines that the sources call with keys of the strings files.
std::vector<std::string> proposedRoutines(ProjectSession& session) {
  std::unordered_set<std::string_view> keys;
  for (const std::shared_ptr<LocalizeString>& record : session.project().stringList()) {
    if (record->languagesDict().count() > 0) keys.insert(record->name());
  }
  RoutineProposals proposals([&keys](std::string_view text) { return keys.count(text) > 0; });
  for (const FileUrl& source : session.project().fileList()) {
    const Result<std::string> text = readText(session.files(), source);
    if (text) proposals.addSource(text.value());
  }
  return proposals.best();
}

ProjectSettings foundSettings(ProjectSession& session) {
  const ProjectWindowController& project = session.project();
  ProjectSettings settings;
  settings.rules = RuleSet::Xcode;
  settings.packages = foundPackages(project);
  settings.routines = proposedRoutines(session);
  if (!project.tables().empty()) settings.sourceLanguage = project.tables().front()->development.text();
  return settings;
}

ExitCode init(const ProjectChoice& choice, Console& console) {
  const FileUrl file = absoluteUrl(choice.directory).appending(kProjectSettingsFile);
  ProjectSession session(console, {});
  if (session.files().identityOf(file)) {
    console.error("there is a " + std::string(kProjectSettingsFile) + " already; nothing was written");
    return ExitCode::Unusable;
  }
  const ExitCode opened = session.openPackage(choice);
  if (opened != ExitCode::Fine) return opened;
  const std::string text = projectSettingsText(foundSettings(session));
  const Outcome written = session.files().writeText(file, text);
  if (!written) {
    console.error("cannot write " + inQuotes(file.path()) + ": " + written.error().sentence);
    return ExitCode::Unusable;
  }
  console.message("Created " + std::string(kProjectSettingsFile) + "; look at the routines, which are a guess");
  console.data(text);
  return ExitCode::Fine;
}

}  // namespace

void addInitCommand(CLI::App& program, TypedCommand& typed) {
  const auto choice = std::make_shared<ProjectChoice>();
  choice->rules = "xcode";
  CLI::App& command =
      addCommand(program, typed, {"init", "Write the settings of a project: .glossmill.json", "~/Projects/Harbour"},
                 [choice](Console& console) { return init(*choice, console); });
  addDirectory(command, choice->directory);
}

}  // namespace glossmill
