#pragma once

#include <array>
#include <span>
#include <string_view>

namespace glossmill {

class AppDelegate;

enum class MenuId { File, Recent, Edit, Project, Rules, Go, Windows, Help };

enum class CommandId {
  Open,
  OpenRecent,  ///< the submenu itself
  ClearMenu,
  Close,
  Save,
  SaveAll,
  SavedVersions,
  Export,
  Import,
  AddLanguage,
  BaseLanguage,
  Quit,
  Undo,
  Redo,
  Cut,
  Copy,
  Paste,
  SelectAll,
  Find,
  ChooseRules,  ///< the submenu itself
  UseClassicRules,
  UseXcodeRules,
  RemoveUnused,
  PreviousString,
  NextString,
  PreviousUntranslated,
  NextUntranslated,
  PreviousLanguage,
  NextLanguage,
  GoToMessage,
  ProjectWindow,
  LogWindow,
  KeyboardShortcuts,
  About,
};

/// One command of the menu bar.
struct Command {
  using Action = void (*)(AppDelegate& application);

  CommandId id;
  MenuId menu;
  std::string_view title;                     ///< English with an "&" before the mnemonic, key of the program's texts
  std::array<std::string_view, 2> shortcuts;  ///< portable text such as "Ctrl+S"; empty where there is none
  int tag = 0;                                ///< what validateMenuItem() decides by
  bool startsGroup = false;                   ///< a separator stands before it
  Action action = nullptr;                    ///< null: what has the focus, or the shell, carries it out
};

/// One button of the tool bar.
struct ToolBarItem {
  CommandId command;
  std::string_view icon;   ///< name of its picture
  std::string_view title;  ///< English, key of the program's texts
  int tag = 0;             ///< what validateToolbarItem() decides by; has nothing to do with the menu's tag
};

/// Says the tool bar while no project is open; key of the program's texts.
inline constexpr std::string_view kOpenAProjectFirst = "Open a project first";

/// The menus of the menu bar, from left to right.
std::span<const MenuId> menus();
/// Every command, menu by menu and in the order of the menus.
std::span<const Command> commands();
const Command& command(CommandId id);
/// English with a mnemonic, key of the program's texts.
std::string_view menuTitle(MenuId menu);
/// The tool bar, from left to right.
std::span<const ToolBarItem> toolBarItems();

/// Whether the command's menu item is enabled.
bool isEnabled(const AppDelegate& application, const Command& command);
bool isEnabled(const AppDelegate& application, const ToolBarItem& item);
/// What an enabled item says instead of carrying its command out, a key of the program's texts; empty when the command
/// can be carried out. While no project is open the commands that work on one would get hold of its lists for good.
std::string_view obstacle(const AppDelegate& application, const ToolBarItem& item);
/// Whether one of the commands of its menu is always the chosen one.
bool isChoice(const Command& command);
/// Whether this choice is the chosen one; none is while no project is open.
bool isChosen(const AppDelegate& application, const Command& command);
/// Carries the command out, whether it is enabled or not; nothing happens when it has no action.
void perform(AppDelegate& application, const Command& command);

}  // namespace glossmill
