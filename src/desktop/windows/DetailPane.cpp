#include "desktop/windows/DetailPane.h"

#include "desktop/host/QtText.h"
#include "desktop/tables/CellText.h"
#include "text/Format.h"

namespace glossmill {

DetailPane::DetailPane(const DetailPaneWidgets& widgets, ProjectWindowController& project, const Bundle& bundle)
    : m_widgets(widgets), m_project(project), m_bundle(bundle) {
  m_widgets.editor.setProject(project);
  for (QPlainTextEdit* text : {&widgets.key, &widgets.comment}) {
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  stringSelected();
  languageSelected();
}

void DetailPane::stringSelected() {
  const auto record = m_project.selectedString();
  m_widgets.key.setPlainText(record ? textWithVisibleBreaks(record->name()) : QString());
  m_widgets.comment.setPlainText(record ? commentsAndFiles(*record) : QString());
  m_widgets.editor.translationChanged();
}

QString DetailPane::commentsAndFiles(const LocalizeString& record) const {
  const QString comments = toQt(record.comment());
  const QString files = toQt(formatText(m_bundle.localizedString("Files: %@"), {record.sourceList()}));
  return comments.isEmpty() ? files : comments + QLatin1Char('\n') + files;
}

void DetailPane::languageSelected() {
  const auto language = m_project.selectedLanguage();
  const std::string label = language ? formatText(m_bundle.localizedString("Translation: %@"),
                                                  {language->description().value_or(language->iso639())})
                                     : m_bundle.localizedString("Translation");
  m_widgets.editorLabel.setText(toQt(label));
  m_widgets.editor.setAccessibleName(toQt(label));
}

}  // namespace glossmill
