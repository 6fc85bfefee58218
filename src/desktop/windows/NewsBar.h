#pragma once

#include <QFrame>
#include <QPointer>

#include "app/NewsQueue.h"
#include "platform/Bundle.h"

class QBoxLayout;
class QLabel;
class QToolButton;

namespace glossmill {

/// The quiet bar at the top of the window: one piece of news with its buttons. It never takes the keyboard by itself;
/// F6 leads into it, Escape and its cross close it, and screen readers hear of it.
class NewsBar : public QFrame {
 public:
  /// Both outlive the bar.
  NewsBar(NewsQueue& queue, const Bundle& bundle, QWidget* parent);
  ~NewsBar() override;

  /// Puts the keyboard on the first button, or back to where it was when the bar has it already.
  void switchFocus();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void show(const News* news);
  void addButtons(const News& news);
  void announce();
  void giveFocusBack();

  NewsQueue& m_queue;
  const Bundle& m_bundle;
  QBoxLayout* m_buttons;
  QLabel* m_text;
  QToolButton* m_close;
  QPointer<QWidget> m_focusBefore;
};

}  // namespace glossmill
