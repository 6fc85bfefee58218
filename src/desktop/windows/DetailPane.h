#pragma once

#include <QLabel>
#include <QPlainTextEdit>

#include "app/ReferenceText.h"
#include "desktop/windows/TranslationEditor.h"
#include "platform/Bundle.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The widgets below the tables; they outlive the pane.
struct DetailPaneWidgets {
  QPlainTextEdit& key;
  QLabel& sourceLabel;
  QPlainTextEdit& source;
  QPlainTextEdit& comment;
  QLabel& editorLabel;
  TranslationEditor& editor;
};

/// Shows the selected string in full: key, comments, files, and its translation to edit.
class DetailPane {
 public:
  DetailPane(const DetailPaneWidgets& widgets, ProjectWindowController& project, const ReferenceText& reference,
             const Bundle& bundle);

  void stringSelected();
  void languageSelected();
  /// Another text is shown beside the translation, or those of another project.
  void referenceChanged();

 private:
  QString commentsAndFiles(const LocalizeString& record) const;

  DetailPaneWidgets m_widgets;
  ProjectWindowController& m_project;
  const ReferenceText& m_reference;
  const Bundle& m_bundle;
};

}  // namespace glossmill
