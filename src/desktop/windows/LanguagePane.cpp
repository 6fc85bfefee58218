#include "desktop/windows/LanguagePane.h"

#include <QHeaderView>

#include "desktop/host/QtText.h"
#include "desktop/tables/PercentBarDelegate.h"
#include "text/Format.h"

namespace glossmill {

void setUpLanguageColumns(QTableView& view) {
  QHeaderView& header = *view.horizontalHeader();
  constexpr int kColumnWidths[] = {66, 110, 92, 54};
  for (int column = 0; column < header.count(); ++column) header.resizeSection(column, kColumnWidths[column]);
  // The name takes what the others leave, so that nothing is cut off when a scroll bar comes.
  header.setSectionResizeMode(LanguageTableModel::Name, QHeaderView::Stretch);
  view.setItemDelegateForColumn(LanguageTableModel::Done, new PercentBarDelegate(&view));
}

LanguagePane::LanguagePane(QTableView& view, QLabel& count, ProjectWindowController& project, const Bundle& bundle)
    : m_count(count),
      m_project(project),
      m_bundle(bundle),
      m_model(project.languageController(), project, bundle),
      m_table(view, m_model, std::make_unique<ControllerRows<Language>>(project.languageController()),
              [&project] { return project.longJobRunning(); }) {
  setUpLanguageColumns(view);
  showCount();
}

void LanguagePane::languagesChanged(ArrayChange change) {
  m_table.change(change);
  if (change != ArrayChange::Selection) showCount();
}

void LanguagePane::showCount() {
  const std::string number = ArrayCountToLabelTextTransformer::transformedValue(m_project.languagesList()->size());
  m_count.setText(toQt(formatText(m_bundle.localizedString("Languages: %@"), {number})));
}

}  // namespace glossmill
