#include "project/LongJob.h"

namespace glossmill {

void LongJob::begin(const std::string& title, std::function<void()> ended) {
  if (!m_sheet.loaded) m_sheet = m_load();
  setTitle(title);
  m_sheets.beginSheet(*m_sheet.outlets.longTimeSheet, std::move(ended));
  m_canceled.set(false);
  m_isRunning = true;
}

void LongJob::setTitle(const std::string& title) {
  m_sheet.outlets.longTimeSheetTitle->setStringValue(title);
}

void LongJob::showActivity() {
  m_sheet.outlets.longTimeIndicator->setIndeterminate(true);
  m_sheet.outlets.longTimeIndicator->startAnimation();
}

void LongJob::showProgress(std::size_t units) {
  ProgressIndicator& indicator = *m_sheet.outlets.longTimeIndicator;
  indicator.setIndeterminate(false);
  indicator.setMinValue(0.0);
  indicator.setMaxValue(static_cast<double>(units));
  indicator.setDoubleValue(0.0);
}

void LongJob::setProgress(double units) {
  m_sheet.outlets.longTimeIndicator->setDoubleValue(units);
}

void LongJob::end() {
  m_isRunning = false;
  if (!m_sheet.loaded) return;
  m_sheet.outlets.longTimeSheet->orderOut();
  m_sheets.endSheet(*m_sheet.outlets.longTimeSheet);
}

}  // namespace glossmill
