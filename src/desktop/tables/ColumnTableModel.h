#pragma once

#include <QGuiApplication>
#include <utility>
#include <vector>

#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"
#include "desktop/look/ReadableColor.h"
#include "desktop/tables/Column.h"
#include "desktop/tables/RecordTableModel.h"
#include "model/ArrayController.h"
#include "platform/Bundle.h"

namespace glossmill {

/// What a table of these columns shows of the records that an ArrayController arranges.
template <typename Record>
class ColumnTableModel : public RecordTableModel {
 public:
  using Columns = std::vector<Column<Record>>;

  /// `records` outlive the model.
  ColumnTableModel(const ArrayController<Record>& records, Columns columns, const Bundle& bundle)
      : RecordTableModel(headsOf(columns, bundle)), m_records(records), m_columns(std::move(columns)) {}

 protected:
  QVariant cell(std::size_t row, int number, int role) const override {
    const Record& record = *m_records.arrangedObject(row);
    const Column<Record>& column = m_columns[static_cast<std::size_t>(number)];
    switch (role) {
      case Qt::DisplayRole:
        return column.text(record);
      case Qt::ToolTipRole:
        return toolTipText(column.text(record));
      case Qt::ForegroundRole:
        return column.color ? readableColor(column.color(record), QGuiApplication::palette()) : QVariant();
      case Qt::TextAlignmentRole:
        return column.alignment ? static_cast<int>(column.alignment()) : QVariant();
      case kPercentRole:
        return column.percent ? column.percent(record) : QVariant();
      default:
        return {};
    }
  }

 private:
  static std::vector<ColumnHead> headsOf(const Columns& columns, const Bundle& bundle) {
    std::vector<ColumnHead> heads;
    for (const Column<Record>& column : columns) {
      const QString title = column.title.empty() ? QString() : toQt(bundle.localizedString(column.title));
      heads.push_back({title, column.width, column.fit, column.percent != nullptr, column.place});
    }
    return heads;
  }

  const ArrayController<Record>& m_records;
  const Columns m_columns;
};

}  // namespace glossmill
