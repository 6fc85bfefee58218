#pragma once

#include <QMenu>
#include <QMenuBar>
#include <functional>

#include "app/ReferenceText.h"
#include "platform/Bundle.h"

namespace glossmill {

/// The menu of what the window shows: the columns of the strings, and the text beside the translations. All of it
/// outlives this.
class ViewMenu {
 public:
  ViewMenu(ProjectWindowController& project, ReferenceText& reference, QMenu& columns, const Bundle& bundle);

  /// As the menu with this number.
  void insertInto(QMenuBar& bar, int number);
  /// Called after another text was chosen.
  std::function<void()> referenceChanged;

 private:
  void fillReferences();
  void addReference(const QString& title, std::optional<LanguageCode> language);

  ProjectWindowController& m_project;
  ReferenceText& m_reference;
  const Bundle& m_bundle;
  QMenu m_menu;
  QMenu m_references;
};

}  // namespace glossmill
