#include "desktop/windows/TranslationEditor.h"

#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextDocument>

#include "desktop/host/QtText.h"
#include "desktop/look/LanguageDirection.h"
#include "desktop/windows/EditorText.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

TranslationEditor::TranslationEditor(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  connect(this, &QPlainTextEdit::textChanged, this, [this] { store(); });
}

void TranslationEditor::setProject(ProjectWindowController& project) {
  m_project = &project;
  load();
}

void TranslationEditor::translationChanged() {
  load();
}

/// Only what was just taken back can be made again: any other key puts an end to that.
void TranslationEditor::store() {
  if (m_loading || !m_shownString || m_project->selectedString() != m_shownString) return;
  const EditKind kind = document()->isRedoAvailable() ? EditKind::TypingBack : EditKind::Typing;
  m_shownString->setTranslationForSelectedString(fromQt(fromEditorText(document()->toRawText())), m_project, kind);
  Q_EMIT translationEdited();
}

/// The text of another string or language starts without anything to undo; one that is shown already keeps its cursor.
void TranslationEditor::load() {
  const auto string = m_project->selectedString();
  const auto language = m_project->selectedLanguage();
  const LanguageCode code = language ? language->code() : LanguageCode();
  const QString text = string ? toEditorText(toQt(string->translationForSelectedString(m_project))) : QString();
  setEnabled(string && language);
  const bool isShown = m_shownString == string && m_shownLanguage == code;
  if (isShown && fromEditorText(document()->toRawText()) == fromEditorText(text)) return;
  const QScopedValueRollback loading(m_loading, true);
  m_shownString = string;
  m_shownLanguage = code;
  setDirection(language ? languageDirection(language->iso639()) : layoutDirection());
  setPlainText(text);
}

void TranslationEditor::setDirection(Qt::LayoutDirection direction) {
  QTextOption option = document()->defaultTextOption();
  option.setTextDirection(direction);
  option.setAlignment((direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
  document()->setDefaultTextOption(option);
}

/// The clipboard gets the text as it is stored, too.
QMimeData* TranslationEditor::createMimeDataFromSelection() const {
  auto* selected = new QMimeData;
  selected->setText(fromEditorText(textCursor().selectedText()));
  return selected;
}

}  // namespace glossmill
