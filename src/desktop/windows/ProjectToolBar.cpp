#include "desktop/windows/ProjectToolBar.h"

#include <QToolTip>

#include "desktop/host/QtText.h"
#include "desktop/look/Icons.h"

namespace glossmill {

ProjectToolBar::ProjectToolBar(QToolBar& bar, CommandActions& actions, AppDelegate& delegate, const Bundle& bundle)
    : m_bar(bar), m_actions(actions), m_delegate(delegate), m_bundle(bundle) {
  for (const ToolBarItem& item : toolBarItems()) add(item);
  validate();
}

void ProjectToolBar::add(const ToolBarItem& item) {
  QAction* action = m_bar.addAction(icon(toQt(item.icon)), toQt(m_bundle.localizedString(item.title)));
  QObject::connect(action, &QAction::triggered, &m_bar, [this, &item, action] {
    use(item, *action);
    m_actions.validateSoon();
  });
  m_items.emplace_back(&item, action);
}

/// The item goes straight to the command's work: being enabled is decided here, not by the menu.
void ProjectToolBar::use(const ToolBarItem& item, QAction& action) {
  if (!isEnabled(m_delegate, item)) return;
  const QString obstacle = obstacleOf(item);
  if (obstacle.isEmpty()) return perform(m_delegate, command(item.command));
  QWidget* button = m_bar.widgetForAction(&action);
  QWidget& place = button && button->isVisible() ? *button : m_bar;
  QToolTip::showText(place.mapToGlobal(place.rect().bottomLeft()), obstacle, &place);
}

/// "Export (Ctrl+E)", and below what stands in the way.
QString ProjectToolBar::tipOf(const ToolBarItem& item) const {
  const QString title = toQt(m_bundle.localizedString(item.title));
  const QString keys = m_actions.action(item.command).shortcut().toString(QKeySequence::NativeText);
  const QString tip = keys.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, keys);
  const QString obstacle = isEnabled(m_delegate, item) ? obstacleOf(item) : QString();
  return obstacle.isEmpty() ? tip : tip + QLatin1Char('\n') + obstacle;
}

QString ProjectToolBar::obstacleOf(const ToolBarItem& item) const {
  const std::string_view obstacle = glossmill::obstacle(m_delegate, item);
  return obstacle.empty() ? QString() : toQt(m_bundle.localizedString(obstacle));
}

void ProjectToolBar::validate() {
  for (const auto& [item, action] : m_items) {
    action->setEnabled(isEnabled(m_delegate, *item));
    action->setToolTip(tipOf(*item));
  }
}

}  // namespace glossmill
