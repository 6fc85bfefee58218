#pragma once

#include <QProgressBar>
#include <QTimer>

#include "platform/Controls.h"

namespace glossmill {

/// A progress bar that is drawn at most thirty times a second, however often its value changes. The bar outlives it.
class WidgetProgressIndicator : public ProgressIndicator {
 public:
  explicit WidgetProgressIndicator(QProgressBar& bar);

  void setIndeterminate(bool indeterminate) override;
  /// A bar without an end moves by itself.
  void startAnimation() override {}
  void setMinValue(double value) override { set(m_min, value); }
  void setMaxValue(double value) override { set(m_max, value); }
  void setDoubleValue(double value) override { set(m_value, value); }

 private:
  void set(double& field, double value);
  void draw();

  QProgressBar& m_bar;
  QTimer m_timer;
  bool m_indeterminate = false;
  double m_min = 0;
  double m_max = 100;
  double m_value = 0;
};

}  // namespace glossmill
