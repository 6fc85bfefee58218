#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/CancelFlag.h"
#include "platform/InterfaceFiles.h"
#include "platform/Sheets.h"

namespace glossmill {

/// The sheet that covers the window while a long job runs, its progress and its cancel flag. The sheet is loaded for
/// the first job and kept. Main thread, but for the flag.
class LongJob {
 public:
  using LoadSheet = std::function<Interface<LongTimeSheetOutlets>()>;

  /// `sheets` outlives it.
  LongJob(Sheets& sheets, LoadSheet load) : m_sheets(sheets), m_load(std::move(load)) {}

  /// Shows the sheet and forgets an earlier cancel; `ended` is called when the sheet has ended.
  void begin(const std::string& title, std::function<void()> ended);
  void setTitle(const std::string& title);
  /// The indicator moves, but does not say how far the job is.
  void showActivity();
  /// The indicator counts from 0 to `units`.
  void showProgress(std::size_t units);
  void setProgress(double units);
  /// Closes the sheet. Harmless on a closed one, and before the first job.
  void end();

  void cancel() { m_canceled.set(true); }
  const CancelFlag& canceled() const { return m_canceled; }
  /// Whether it was begun and not ended.
  bool isRunning() const { return m_isRunning; }

 private:
  Sheets& m_sheets;
  LoadSheet m_load;
  Interface<LongTimeSheetOutlets> m_sheet;
  CancelFlag m_canceled;
  bool m_isRunning = false;
};

}  // namespace glossmill
