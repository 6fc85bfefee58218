#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "platform/Bundle.h"
#include "project/Recovery.h"

class QPushButton;
class QTreeWidget;

namespace glossmill {

/// The edits that former sessions left unsaved, one by one: what the text was, what it became, what it is now. Those
/// that fit are chosen; a text that has changed since can be chosen too. Shows the project as it was when the window
/// was made.
class UnsavedEditsWindow : public QDialog {
 public:
  /// `bundle` outlives the window.
  UnsavedEditsWindow(std::vector<RecoverableEdit> edits, const Bundle& bundle, QWidget* parent);

  std::function<void(const std::vector<RecoverableEdit>&)> apply;
  std::function<void()> discard;

 private:
  void layOut();
  void addRow(const RecoverableEdit& edit);
  QString textOr(const std::optional<std::string>& text) const;
  QString noteOf(const RecoverableEdit& edit) const;
  std::vector<RecoverableEdit> chosen() const;
  void validate();
  QString localized(std::string_view key) const;

  const std::vector<RecoverableEdit> m_edits;
  const Bundle& m_bundle;
  QTreeWidget* m_table;
  QPushButton* m_apply;
  QPushButton* m_discard;
  QPushButton* m_close;
};

}  // namespace glossmill
