#pragma once

#include <QObject>
#include <initializer_list>
#include <vector>

#include "timing/Samples.h"

class QWidget;

namespace glossmill::bench {

/// Notices the paint events of widgets from its construction on.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(std::initializer_list<QWidget*> widgets);

  /// Whether each of them was painted at least once.
  bool isComplete() const { return m_unpainted.empty(); }
  /// When any of them was, in seconds since the construction.
  const std::vector<double>& moments() const { return m_moments; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<QObject*> m_unpainted;
  Stopwatch m_time;
  std::vector<double> m_moments;
};

}  // namespace glossmill::bench
