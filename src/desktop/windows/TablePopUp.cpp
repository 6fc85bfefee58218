#include "desktop/windows/TablePopUp.h"

#include <QAbstractItemView>

#include "app/ViewConditions.h"
#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"

namespace glossmill {

TablePopUp::TablePopUp(QComboBox& box, ProjectWindowController& project, ViewFilter& view, const Bundle& bundle)
    : m_box(box), m_project(project), m_view(view), m_bundle(bundle) {
  // What tells one long id from another stands at its end as often as at its beginning.
  m_box.view()->setTextElideMode(Qt::ElideMiddle);
  QObject::connect(&m_box, &QComboBox::activated, &m_box, [this] { narrow(); });
  m_project.observers().add([this](ProjectMoment moment) {
    if (moment != ProjectMoment::Saved) fill();
  });
  fill();
}

void TablePopUp::fill() {
  m_view.set(ViewPart::Table, nullptr);
  m_box.clear();
  m_box.addItem(toQt(m_bundle.localizedString("All tables")));
  if (m_project.tables().size() > 1) {
    for (const std::shared_ptr<StringsTable>& table : m_project.tables()) m_box.addItem(shownText(table->id));
  }
  m_box.setVisible(isOffered());
}

void TablePopUp::narrow() {
  const int chosen = m_box.currentIndex();
  m_box.setToolTip(chosen > 0 ? toolTipText(m_box.currentText()) : QString());
  m_view.set(ViewPart::Table,
             chosen > 0 ? isOfTable(m_project.tables()[static_cast<std::size_t>(chosen - 1)]) : nullptr);
}

}  // namespace glossmill
