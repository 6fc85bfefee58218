#pragma once

#include <QObject>
#include <QTableView>
#include <functional>
#include <memory>
#include <optional>

#include "desktop/tables/RecordTableModel.h"
#include "desktop/tables/RowSource.h"
#include "platform/Controls.h"

namespace glossmill {

/// Keeps a table widget in step with an ArrayController: one reset when rows come, go or move, with the selection and
/// the topmost record kept in place. A batch of updates ends with its last endUpdates(), and one that is never ended
/// with the present turn of the event loop, or when the job that began it is over. The widget outlives it.
class RecordTable : public QObject, public TableView {
 public:
  /// `isJobRunning` may be empty: then no job ever is.
  RecordTable(QTableView& view, RecordTableModel& model, std::unique_ptr<RowSource> rows,
              std::function<bool()> isJobRunning = {});

  void beginUpdates() override;
  void endUpdates() override;
  void reloadData() override;
  void setDoubleAction(std::function<void()> action) override { m_doubleAction = std::move(action); }

  bool eventFilter(QObject* watched, QEvent* event) override;

  /// To be called when the ArrayController tells of a change.
  void change(ArrayChange change);
  /// What a record shows has changed.
  void redrawSelected();
  void redraw();
  /// Does what waits, unless a job is still running.
  void settle();

 private:
  enum class Scrolling { Not, ToSelection, ToMiddle };

  std::optional<std::size_t> rowForKey(const QEvent& event) const;
  void settleSoon();
  void showRows();
  void showSelection(Scrolling scrolling);
  bool isSelectionVisible() const;
  void selectionChanged();
  void rememberTop();
  void restoreTop();

  QTableView& m_view;
  RecordTableModel& m_model;
  std::unique_ptr<RowSource> m_rows;
  std::function<bool()> m_isJobRunning;
  std::function<void()> m_doubleAction;
  int m_depth = 0;  ///< of begun updates
  bool m_rowsWait = false;
  bool m_selectionWaits = false;
  bool m_settleQueued = false;
  bool m_syncing = false;             ///< the widget is being told, so it is not to be listened to
  const void* m_topRecord = nullptr;  ///< only compared
};

}  // namespace glossmill
