#include "desktop/windows/MainMenu.h"

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

class MenuFiller {
 public:
  MenuFiller(CommandActions& actions, QMenu& recentMenu, const Bundle& bundle)
      : m_actions(actions), m_recentMenu(recentMenu), m_bundle(bundle) {}

  void fill(QMenu& menu, MenuId id) const {
    for (const Command& command : commands()) {
      if (command.menu == id) add(menu, command);
    }
    QObject::connect(&menu, &QMenu::aboutToShow, &m_actions, [&actions = m_actions] { actions.validate(); });
  }

  QString title(MenuId id) const { return toQt(m_bundle.localizedString(menuTitle(id))); }

 private:
  void add(QMenu& menu, const Command& command) const {
    if (command.startsGroup) menu.addSeparator();
    if (command.id == CommandId::OpenRecent) {
      menu.addMenu(&m_recentMenu);
    } else if (command.id == CommandId::ChooseRules) {
      fill(*menu.addMenu(title(MenuId::Rules)), MenuId::Rules);
    } else {
      menu.addAction(&m_actions.action(command.id));
    }
  }

  CommandActions& m_actions;
  QMenu& m_recentMenu;
  const Bundle& m_bundle;
};

}  // namespace

void fillMenuBar(QMenuBar& bar, CommandActions& actions, QMenu& recentMenu, const Bundle& bundle) {
  const MenuFiller filler(actions, recentMenu, bundle);
  recentMenu.setTitle(filler.title(MenuId::Recent));
  for (const MenuId id : menus()) filler.fill(*bar.addMenu(filler.title(id)), id);
}

}  // namespace glossmill
