#include "desktop/windows/ViewMenu.h"

#include <QActionGroup>

#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"

namespace glossmill {

ViewMenu::ViewMenu(ProjectWindowController& project, ReferenceText& reference, QMenu& columns, const Bundle& bundle)
    : m_project(project),
      m_reference(reference),
      m_bundle(bundle),
      m_menu(toQt(bundle.localizedString("&View"))),
      m_references(toQt(bundle.localizedString("&Beside the Translation"))) {
  columns.setTitle(toQt(bundle.localizedString("&Columns")));
  m_menu.addMenu(&columns);
  m_menu.addMenu(&m_references);
  QObject::connect(&m_references, &QMenu::aboutToShow, &m_references, [this] { fillReferences(); });
  m_project.observers().add([this](ProjectMoment moment) {
    if (moment == ProjectMoment::Closed) m_reference.choose(std::nullopt);
  });
  fillReferences();
}

void ViewMenu::insertInto(QMenuBar& bar, int number) {
  bar.insertMenu(bar.actions().value(number), &m_menu);
}

void ViewMenu::fillReferences() {
  m_references.clear();
  addReference(toQt(m_bundle.localizedString("Source Text")), std::nullopt);
  for (const std::shared_ptr<Language>& language : *m_project.languagesList()) {
    const std::string name = language->description().value_or("");
    addReference(shownText(name.empty() ? language->iso639() : name + " (" + language->iso639() + ")"),
                 language->code());
  }
}

void ViewMenu::addReference(const QString& title, std::optional<LanguageCode> language) {
  QAction* action = m_references.addAction(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
  action->setCheckable(true);
  action->setChecked(m_reference.chosen() == language);
  QObject::connect(action, &QAction::triggered, &m_references, [this, language] {
    m_reference.choose(language);
    if (referenceChanged) referenceChanged();
  });
}

}  // namespace glossmill
