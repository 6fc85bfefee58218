#include "desktop/windows/MainMenu.h"

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

void fillMenu(QMenu& menu, MenuId id, CommandActions& actions, QMenu& recentMenu) {
  for (const Command& command : commands()) {
    if (command.menu != id) continue;
    if (command.startsGroup) menu.addSeparator();
    if (command.id == CommandId::OpenRecent) {
      menu.addMenu(&recentMenu);
    } else {
      menu.addAction(&actions.action(command.id));
    }
  }
  QObject::connect(&menu, &QMenu::aboutToShow, &actions, [&actions] { actions.validate(); });
}

}  // namespace

void fillMenuBar(QMenuBar& bar, CommandActions& actions, QMenu& recentMenu, const Bundle& bundle) {
  recentMenu.setTitle(toQt(bundle.localizedString(menuTitle(MenuId::Recent))));
  for (const MenuId id : {MenuId::File, MenuId::Edit, MenuId::Go, MenuId::Windows, MenuId::Help}) {
    QMenu* menu = bar.addMenu(toQt(bundle.localizedString(menuTitle(id))));
    fillMenu(*menu, id, actions, recentMenu);
  }
}

}  // namespace glossmill
