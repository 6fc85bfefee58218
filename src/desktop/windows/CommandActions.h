#pragma once

#include <QAction>
#include <QActionGroup>
#include <QKeyEvent>
#include <QObject>
#include <functional>
#include <map>

#include "app/AppDelegate.h"
#include "app/Commands.h"
#include "platform/Bundle.h"

namespace glossmill {

/// One QAction for each command of the program's table. A command that has no action there belongs to the shell, which
/// sets a handler; the Edit menu goes to whatever has the keyboard.
class CommandActions : public QObject {
 public:
  /// `delegate` outlives the actions.
  CommandActions(AppDelegate& delegate, const Bundle& bundle);

  /// Keeps text fields from taking a command's keys for one of their own, as Ctrl+E on some desktops.
  bool eventFilter(QObject* watched, QEvent* event) override;

  QAction& action(CommandId id) { return *m_actions.at(id); }
  /// Carries a command out in the place of the table's own action.
  void setHandler(CommandId id, std::function<void()> handler) { m_handlers[id] = std::move(handler); }
  /// While a sheet covers the project window, only what does not touch the project is enabled.
  void setCovered(bool covered);
  bool isCovered() const { return m_covered; }
  /// Called after all actions were enabled or disabled.
  std::function<void()> validated;

  bool isEnabled(const Command& command) const;
  /// Enables and disables all actions, soon, once for however many calls.
  void validateSoon();
  void validate();

 private:
  void add(const Command& command);
  void addChoice(const Command& command, QAction& action);
  void trigger(const Command& command);
  bool isCommandKey(const QKeyEvent& event) const;

  AppDelegate& m_delegate;
  const Bundle& m_bundle;
  std::map<CommandId, QAction*> m_actions;
  std::map<CommandId, std::function<void()>> m_handlers;
  std::map<MenuId, QActionGroup*> m_choices;
  bool m_covered = false;
  bool m_validationQueued = false;
};

}  // namespace glossmill
