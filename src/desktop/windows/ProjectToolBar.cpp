#include "desktop/windows/ProjectToolBar.h"

#include "desktop/host/QtText.h"
#include "desktop/look/Icons.h"

namespace glossmill {

ProjectToolBar::ProjectToolBar(QToolBar& bar, CommandActions& actions, AppDelegate& delegate, const Bundle& bundle)
    : m_bar(bar), m_actions(actions), m_delegate(delegate), m_bundle(bundle) {
  for (const ToolBarItem& item : toolBarItems()) add(item);
  validate();
}

/// The item goes straight to the command's work: being enabled is decided here, not by the menu.
void ProjectToolBar::add(const ToolBarItem& item) {
  QAction* action = m_bar.addAction(icon(toQt(item.icon)), toQt(m_bundle.localizedString(item.title)));
  const QString keys = m_actions.action(item.command).shortcut().toString(QKeySequence::NativeText);
  action->setToolTip(keys.isEmpty() ? action->text() : QStringLiteral("%1 (%2)").arg(action->text(), keys));
  QObject::connect(action, &QAction::triggered, &m_bar, [this, &item] {
    if (isEnabled(m_delegate, item)) perform(m_delegate, command(item.command));
    m_actions.validateSoon();
  });
  m_items.emplace_back(&item, action);
}

void ProjectToolBar::validate() {
  for (const auto& [item, action] : m_items) action->setEnabled(isEnabled(m_delegate, *item));
}

}  // namespace glossmill
