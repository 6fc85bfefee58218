#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "model/Edit.h"
#include "platform/Bundle.h"

namespace glossmill {

/// Edits to choose from, each with a check mark: language, table, key, and the text that is there.
class CheckedEdits : public QAbstractTableModel {
 public:
  enum Column { LanguageColumn, TableColumn, KeyColumn, TextColumn };

  /// All of them are checked at first.
  CheckedEdits(std::vector<Edit> edits, const Bundle& bundle);

  std::size_t checkedCount() const { return m_checkedCount; }
  std::vector<Edit> checked() const;
  void checkAll(bool checked);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override {
    return parent.isValid() ? 0 : kColumnCount;
  }
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  QString text(const Edit& edit, int column) const;

  static constexpr int kColumnCount = TextColumn + 1;

  const std::vector<Edit> m_edits;
  const Bundle& m_bundle;
  std::vector<bool> m_checked;
  std::size_t m_checkedCount;
};

}  // namespace glossmill
