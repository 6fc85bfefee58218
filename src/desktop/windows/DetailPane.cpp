#include "desktop/windows/DetailPane.h"

#include "desktop/host/QtText.h"
#include "desktop/tables/CellText.h"
#include "text/Format.h"

namespace glossmill {

DetailPane::DetailPane(const DetailPaneWidgets& widgets, ProjectWindowController& project,
                       const ReferenceText& reference, const Bundle& bundle)
    : m_widgets(widgets), m_project(project), m_reference(reference), m_bundle(bundle) {
  m_widgets.editor.setProject(project);
  for (QPlainTextEdit* text : {&widgets.key, &widgets.source, &widgets.comment}) {
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  referenceChanged();
  languageSelected();
}

void DetailPane::referenceChanged() {
  const bool isShown = m_reference.isWorthShowing();
  m_widgets.sourceLabel.setVisible(isShown);
  m_widgets.source.setVisible(isShown);
  const auto& chosen = m_reference.chosen();
  const std::string label = chosen ? formatText(m_bundle.localizedString("Reference: %@"), {chosen->text()})
                                   : m_bundle.localizedString("Source Text");
  m_widgets.sourceLabel.setText(toQt(label));
  m_widgets.source.setAccessibleName(toQt(label));
  stringSelected();
}

void DetailPane::stringSelected() {
  const auto record = m_project.selectedString();
  m_widgets.key.setPlainText(record ? textWithVisibleBreaks(record->name()) : QString());
  m_widgets.source.setPlainText(record ? textWithVisibleBreaks(m_reference.of(*record)) : QString());
  m_widgets.comment.setPlainText(record ? commentsAndFiles(*record) : QString());
  m_widgets.editor.translationChanged();
}

QString DetailPane::commentsAndFiles(const LocalizeString& record) const {
  const QString comments = toQt(record.comment());
  const std::string list = record.sourceList();
  if (list.empty()) return comments;
  const QString files = toQt(formatText(m_bundle.localizedString("Files: %@"), {list}));
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
