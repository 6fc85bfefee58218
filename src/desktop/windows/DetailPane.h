#pragma once

#include <QLabel>
#include <QPlainTextEdit>

#include "desktop/windows/TranslationEditor.h"
#include "platform/Bundle.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The widgets below the tables; they outlive the pane.
struct DetailPaneWidgets {
  QPlainTextEdit& key;
  QPlainTextEdit& comment;
  QLabel& editorLabel;
  TranslationEditor& editor;
};

/// Shows the selected string in full: key, comments, files, and its translation to edit.
class DetailPane {
 public:
  DetailPane(const DetailPaneWidgets& widgets, ProjectWindowController& project, const Bundle& bundle);

  void stringSelected();
  void languageSelected();

 private:
  QString commentsAndFiles(const LocalizeString& record) const;

  DetailPaneWidgets m_widgets;
  ProjectWindowController& m_project;
  const Bundle& m_bundle;
};

}  // namespace glossmill
