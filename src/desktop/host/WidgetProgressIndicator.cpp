#include "desktop/host/WidgetProgressIndicator.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr int kDrawInterval = 34;  // milliseconds
constexpr int kSteps = 1000;

}  // namespace

WidgetProgressIndicator::WidgetProgressIndicator(QProgressBar& bar) : m_bar(bar) {
  m_timer.setSingleShot(true);
  m_timer.setInterval(kDrawInterval);
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { draw(); });
}

void WidgetProgressIndicator::setIndeterminate(bool indeterminate) {
  m_indeterminate = indeterminate;
  m_bar.setRange(0, indeterminate ? 0 : kSteps);
  m_bar.setTextVisible(!indeterminate);
  draw();
}

void WidgetProgressIndicator::set(double& field, double value) {
  field = value;
  if (!m_timer.isActive()) m_timer.start();
}

void WidgetProgressIndicator::draw() {
  if (m_indeterminate) return;
  const double part = m_max > m_min ? (m_value - m_min) / (m_max - m_min) : 0;
  m_bar.setValue(static_cast<int>(std::clamp(part, 0.0, 1.0) * kSteps));
}

}  // namespace glossmill
