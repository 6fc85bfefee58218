#include "app/Commands.h"

#include <algorithm>

#include "app/AppDelegate.h"
#include "app/UntranslatedSteps.h"

namespace glossmill {

namespace {

/// The action of a command that goes straight to the project window.
template <void (ProjectWindowController::*operation)()>
void onProject(AppDelegate& application) {
  if (ProjectWindowController* project = application.projectWindowController()) (project->*operation)();
}

/// The action of a command that a module of its own carries out on the project.
template <void (*operation)(ProjectWindowController&)>
void onOpenProject(AppDelegate& application) {
  if (ProjectWindowController* project = application.projectWindowController()) operation(*project);
}

/// The action of a command of the application delegate.
template <void (AppDelegate::*operation)()>
void onApplication(AppDelegate& application) {
  (application.*operation)();
}

/// The action of a choice of rules.
template <RuleSet rules>
void choosingRules(AppDelegate& application) {
  application.chooseRules(rules);
}

/// Where the names of commands and menus stand without their types, some of which are those of classes elsewhere.
namespace table {

using enum CommandId;
using enum MenuId;
using Controller = ProjectWindowController;
using App = AppDelegate;

constexpr bool kStartsGroup = true;

constexpr MenuId kMenus[] = {File, MenuId::Edit, Project, Go, Windows, Help};

constexpr Command kCommands[] = {
    {Open, File, "&Open...", {"Ctrl+O"}, 8, false, onApplication<&App::open>},
    {OpenRecent, File, "Open &Recent", {}},
    {ClearMenu, Recent, "Clear Menu", {}, 4, kStartsGroup, onApplication<&App::clearRecent>},
    {Close, File, "&Close", {"Ctrl+W"}, 2, kStartsGroup, onApplication<&App::close>},
    {Save, File, "&Save", {"Ctrl+S"}, 3, false, onApplication<&App::save>},
    {SaveAll, File, "Save All &Languages", {"Ctrl+Shift+S"}, 18, false, onApplication<&App::save>},
    {SavedVersions, File, "Saved &Versions...", {}, 21},
    {Export, File, "&Export...", {"Ctrl+E"}, 5, kStartsGroup, onProject<&Controller::exportStrings>},
    {Import, File, "&Import...", {"Ctrl+I"}, 6, false, onProject<&Controller::importStrings>},
    {AddLanguage, File, "&Add Language...", {"Ctrl+L"}, 7, kStartsGroup, onProject<&Controller::addLanguage>},
    {BaseLanguage, File, "Create &Base Language...", {"Ctrl+B"}, 7, false, onProject<&Controller::createBaseLanguage>},
    {Quit, File, "&Quit", {"Ctrl+Q"}, 0, kStartsGroup, onApplication<&App::quit>},

    {Undo, MenuId::Edit, "&Undo", {"Ctrl+Z"}, 16, false, onProject<&Controller::undo>},
    {Redo, MenuId::Edit, "&Redo", {"Ctrl+Shift+Z"}, 17, false, onProject<&Controller::redo>},
    {Cut, MenuId::Edit, "Cu&t", {"Ctrl+X"}, 0, kStartsGroup},
    {Copy, MenuId::Edit, "&Copy", {"Ctrl+C"}},
    {Paste, MenuId::Edit, "&Paste", {"Ctrl+V"}},
    {SelectAll, MenuId::Edit, "Select &All", {"Ctrl+A"}},
    {Find, MenuId::Edit, "&Find", {"Ctrl+F"}, 0, kStartsGroup},

    {CommandId::ChooseRules, Project, "&Rules", {}},
    {RemoveUnused, Project, "Remove &Unused Entries...", {}, 22, kStartsGroup},
    {UseClassicRules, MenuId::Rules, "&Classic Rules", {}, 2, false, choosingRules<RuleSet::Classic>},
    {UseXcodeRules, MenuId::Rules, "&Xcode's Rules", {}, 2, false, choosingRules<RuleSet::Xcode>},

    {PreviousString, Go, "&Previous String", {"Alt+Up"}, 11, false, onApplication<&App::prevString>},
    {NextString, Go, "&Next String", {"Alt+Down", "Ctrl+Return"}, 12, false, onApplication<&App::nextString>},
    {PreviousUntranslated,
     Go,
     "Pre&vious Untranslated",
     {"Ctrl+Shift+Up"},
     23,
     false,
     onOpenProject<selectPreviousUntranslated>},
    {NextUntranslated, Go, "Next &Untranslated", {"Ctrl+Shift+Down"}, 23, false, onOpenProject<selectNextUntranslated>},
    {PreviousLanguage, Go, "P&revious Language", {"Alt+Left"}, 13, kStartsGroup, onApplication<&App::prevLanguage>},
    {NextLanguage, Go, "Ne&xt Language", {"Alt+Right"}, 14, false, onApplication<&App::nextLanguage>},
    {GoToMessage, Go, "Go to &Message", {"F6"}, 20, kStartsGroup},

    {ProjectWindow, Windows, "&Project Window", {"Ctrl+1"}, 9, false, onApplication<&App::openProjectWindow>},
    {LogWindow, Windows, "&Log Window", {"Ctrl+2"}, 10, false, onApplication<&App::openLogWindow>},

    {KeyboardShortcuts, Help, "&Keyboard Shortcuts", {"F1"}},
    {About, Help, "&About Glossmill", {}, 0, kStartsGroup},
};

constexpr ToolBarItem kToolBarItems[] = {
    {Open, "open", "Open"},       {Save, "save", "Save", 2},    {AddLanguage, "add-language", "Add Language"},
    {Export, "export", "Export"}, {Import, "import", "Import"}, {BaseLanguage, "base-language", "Base Language"},
};

}  // namespace table

}  // namespace

std::span<const MenuId> menus() {
  return table::kMenus;
}

std::span<const Command> commands() {
  return table::kCommands;
}

const Command& command(CommandId id) {
  return *std::find_if(std::begin(table::kCommands), std::end(table::kCommands),
                       [id](const Command& candidate) { return candidate.id == id; });
}

std::string_view menuTitle(MenuId menu) {
  switch (menu) {
    case MenuId::File:
      return "&File";
    case MenuId::Recent:
      return command(CommandId::OpenRecent).title;
    case MenuId::Edit:
      return "&Edit";
    case MenuId::Project:
      return "&Project";
    case MenuId::Rules:
      return command(CommandId::ChooseRules).title;
    case MenuId::Go:
      return "&Go";
    case MenuId::Windows:
      return "&Window";
    case MenuId::Help:
      return "&Help";
  }
  return {};
}

std::span<const ToolBarItem> toolBarItems() {
  return table::kToolBarItems;
}

bool isEnabled(const AppDelegate& application, const Command& command) {
  return application.validateMenuItem(command.tag);
}

bool isEnabled(const AppDelegate& application, const ToolBarItem& item) {
  const ProjectWindowController* project = application.projectWindowController();
  return project && project->validateToolbarItem(item.tag);
}

/// The menu knows which commands need a project, and disables them.
std::string_view obstacle(const AppDelegate& application, const ToolBarItem& item) {
  return isEnabled(application, command(item.command)) ? std::string_view() : kOpenAProjectFirst;
}

bool isChoice(const Command& command) {
  return command.menu == MenuId::Rules;
}

bool isChosen(const AppDelegate& application, const Command& command) {
  const ProjectWindowController* project = application.projectWindowController();
  const RuleSet rules = command.id == CommandId::UseXcodeRules ? RuleSet::Xcode : RuleSet::Classic;
  return project && project->opened() && project->projectOptions().rules == rules;
}

void perform(AppDelegate& application, const Command& command) {
  if (command.action) command.action(application);
}

}  // namespace glossmill
