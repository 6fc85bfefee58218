#pragma once

#include <QPointer>
#include <QWidget>

namespace glossmill {

/// A frame around the table or text that has the keyboard, which styles draw too faintly or not at all. There is one
/// for the whole program; it is a child of whatever it stands in.
class FocusRing : public QObject {
 public:
  FocusRing();
  ~FocusRing() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow(QWidget* focused);
  void place();

  QPointer<QWidget> m_ring;
  QPointer<QWidget> m_target;
};

}  // namespace glossmill
