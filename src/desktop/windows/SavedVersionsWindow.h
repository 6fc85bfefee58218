#pragma once

#include <QDialog>
#include <vector>

#include "app/SaveRestorer.h"
#include "platform/Bundle.h"

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace glossmill {

/// The saves of the open project that can be taken back, what each changed in each language, and a button that brings
/// back the chosen files. Shows the project as it was when the window was made; goes away with it.
class SavedVersionsWindow : public QDialog {
 public:
  /// Both outlive the window.
  SavedVersionsWindow(SaveRestorer& restorer, const Bundle& bundle, QWidget* parent);

  /// Selects this save; the newest is selected at first.
  void select(const std::string& id);

 private:
  void layOut();
  void fillSaves();
  void addSave(const SavedVersion& version);
  void showFiles();
  void addFile(const SavedVersion& version, const SavedFile& file);
  const SavedVersion* selected() const;
  std::vector<FileUrl> chosenFiles() const;
  void restore();
  QString text(std::string_view key) const;
  QString countOr(const std::optional<std::uint64_t>& count) const;

  SaveRestorer& m_restorer;
  const Bundle& m_bundle;
  std::vector<SavedVersion> m_versions;
  QTreeWidget* m_saves;
  QTreeWidget* m_files;
  QLabel* m_empty;
  QPushButton* m_restore;
  QPushButton* m_close;
};

}  // namespace glossmill
