#include "desktop/windows/LanguagePane.h"

#include "desktop/host/QtText.h"
#include "desktop/tables/LanguageColumns.h"
#include "text/Format.h"

namespace glossmill {

LanguagePane::LanguagePane(QTableView& view, QLabel& count, ProjectWindowController& project, const Bundle& bundle)
    : m_count(count),
      m_project(project),
      m_bundle(bundle),
      m_model(project.languageController(), languageColumns(project), bundle),
      m_table(view, m_model, std::make_unique<ControllerRows<Language>>(project.languageController()),
              [&project] { return project.longJobRunning(); }) {
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
