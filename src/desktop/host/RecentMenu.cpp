#include "desktop/host/RecentMenu.h"

#include <utility>

#include "desktop/host/QtText.h"

namespace glossmill {

RecentMenu::RecentMenu(std::function<bool(int tag)> isEnabled) : m_isEnabled(std::move(isEnabled)) {
  QObject::connect(&m_menu, &QMenu::aboutToShow, &m_menu, [this] { validate(); });
}

/// An item that is being chosen may empty its own menu, so its action goes away later.
void RecentMenu::removeAllItems() {
  for (QAction* action : m_menu.actions()) {
    m_menu.removeAction(action);
    action->deleteLater();
  }
}

void RecentMenu::addItem(MenuItem item) {
  if (item.isSeparator) {
    m_menu.addSeparator();
    return;
  }
  QString title = toQt(item.title);
  title.replace(QLatin1Char('&'), QLatin1String("&&"));
  QAction* action = m_menu.addAction(title);
  action->setData(item.tag);
  QObject::connect(action, &QAction::triggered, &m_menu, [this, tag = item.tag, perform = std::move(item.action)] {
    if (m_isEnabled(tag)) perform();
  });
}

void RecentMenu::validate() {
  for (QAction* action : m_menu.actions()) {
    if (!action->isSeparator()) action->setEnabled(m_isEnabled(action->data().toInt()));
  }
}

}  // namespace glossmill
