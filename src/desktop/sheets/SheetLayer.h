#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <functional>

class QMainWindow;

namespace glossmill {

/// Covers everything of a window below its menu bar while a sheet is up: a dimmed picture of what lies below, which is
/// disabled and not drawn meanwhile. A window that is only just coming up is covered a moment later, which spares a
/// short job at the start the drawing. A child of the window.
class SheetLayer : public QWidget {
 public:
  explicit SheetLayer(QMainWindow& window);

  void cover();
  void uncover();

  /// Called after the layer got another size.
  std::function<void()> resized;
  /// Called when the layer, and with it the sheet, can be seen.
  std::function<void()> revealed;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void reveal();
  void place();
  void takePicture();
  void setCoveredEnabled(bool enabled);
  QList<QWidget*> coveredWidgets() const;

  QMainWindow& m_window;
  QWidget* m_menuBar;
  QPixmap m_picture;
  QTimer m_revealTimer;
};

}  // namespace glossmill
