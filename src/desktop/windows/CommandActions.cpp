#include "desktop/windows/CommandActions.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "app/CommandTitles.h"
#include "desktop/host/QtText.h"
#include "desktop/look/FocusEditing.h"

namespace glossmill {

namespace {

bool belongsToFocus(const Command& command) {
  return command.menu == MenuId::Edit && command.id != CommandId::Find;
}

/// Undo and redo go on to the project once the focus has nothing of its own to take back or to make again.
bool goesOn(const Command& command) {
  return command.action && belongsToFocus(command) && !isSingleLineFocused();
}

/// What a person may do while a sheet is up, besides what the sheet offers.
bool worksUnderSheet(const Command& command) {
  return command.id == CommandId::Quit || command.menu == MenuId::Windows || command.menu == MenuId::Help ||
         belongsToFocus(command);
}

/// Some work wherever the keyboard is, the log window included; the others in the project window only.
Qt::ShortcutContext contextOf(const Command& command) {
  const bool everywhere = command.id == CommandId::Open || command.id == CommandId::Save ||
                          command.id == CommandId::SaveAll || command.id == CommandId::Quit ||
                          command.menu == MenuId::Windows || command.menu == MenuId::Help;
  return everywhere ? Qt::ApplicationShortcut : Qt::WindowShortcut;
}

QAction::MenuRole menuRoleOf(CommandId id) {
  if (id == CommandId::Quit) return QAction::QuitRole;
  return id == CommandId::About ? QAction::AboutRole : QAction::NoRole;
}

QList<QKeySequence> shortcutsOf(const Command& command) {
  QList<QKeySequence> keys;
  for (const std::string_view shortcut : command.shortcuts) {
    if (!shortcut.empty()) keys.append(QKeySequence(toQt(shortcut), QKeySequence::PortableText));
  }
  return keys;
}

}  // namespace

CommandActions::CommandActions(AppDelegate& delegate, const Bundle& bundle) : m_delegate(delegate), m_bundle(bundle) {
  for (const Command& command : commands()) add(command);
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this] { validateSoon(); });
}

/// A field that does not claim the key gets it all the same when no command takes it.
bool CommandActions::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride || !isCommandKey(*static_cast<QKeyEvent*>(event))) {
    return QObject::eventFilter(watched, event);
  }
  event->ignore();
  return true;
}

bool CommandActions::isCommandKey(const QKeyEvent& event) const {
  const QKeySequence key(event.keyCombination());
  for (const Command& command : commands()) {
    const bool isFields = belongsToFocus(command) && (canEdit(command.id) || !goesOn(command));
    if (!isFields && m_actions.at(command.id)->shortcuts().contains(key)) return true;
  }
  return false;
}

void CommandActions::add(const Command& command) {
  auto* action = new QAction(toQt(m_bundle.localizedString(command.title)), this);
  action->setShortcuts(shortcutsOf(command));
  action->setShortcutContext(contextOf(command));
  action->setMenuRole(menuRoleOf(command.id));
  if (isChoice(command)) addChoice(command, *action);
  connect(action, &QAction::triggered, this, [this, &command] { trigger(command); });
  m_actions.emplace(command.id, action);
}

/// Of the choices of one menu one is marked.
void CommandActions::addChoice(const Command& command, QAction& action) {
  QActionGroup*& group = m_choices[command.menu];
  if (!group) group = new QActionGroup(this);
  action.setCheckable(true);
  group->addAction(&action);
  group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
}

/// What was enabled a moment ago need not be any more.
void CommandActions::trigger(const Command& command) {
  if (!isEnabled(command)) return validate();
  const auto handler = m_handlers.find(command.id);
  if (handler != m_handlers.end()) {
    handler->second();
  } else if (belongsToFocus(command) && canEdit(command.id)) {
    edit(command.id);
  } else {
    perform(m_delegate, command);
  }
  validateSoon();
}

bool CommandActions::isEnabled(const Command& command) const {
  if (m_covered && !worksUnderSheet(command)) return false;
  if (belongsToFocus(command) && canEdit(command.id)) return true;
  if (belongsToFocus(command) && (m_covered || !goesOn(command))) return false;
  return glossmill::isEnabled(m_delegate, command);
}

void CommandActions::setCovered(bool covered) {
  m_covered = covered;
  validate();
}

void CommandActions::validateSoon() {
  if (std::exchange(m_validationQueued, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { validate(); }, Qt::QueuedConnection);
}

void CommandActions::validate() {
  m_validationQueued = false;
  for (const Command& command : commands()) {
    QAction& action = *m_actions.at(command.id);
    action.setEnabled(isEnabled(command));
    if (isChoice(command)) action.setChecked(isChosen(m_delegate, command));
    action.setText(toQt(commandTitle(m_delegate, command, m_bundle)));
  }
  if (validated) validated();
}

}  // namespace glossmill
