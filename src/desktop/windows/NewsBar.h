#pragma once

#include <QFrame>
#include <QPointer>
#include <functional>

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
  NewsBar(NewsQueue& queue, const Bundle& bundle);
  ~NewsBar() override;

  /// Puts the keyboard on the first button, or back to where it was when the bar has it already.
  void switchFocus();
  /// Called after the bar has shown other news, or none.
  std::function<void()> changed;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void show(const News* news);
  void removeButtons();
  void addButtons(const News& news);
  void showKind(NewsKind kind);
  void takeColors();
  void announce();
  void giveFocusBack();

  NewsQueue& m_queue;
  QBoxLayout* m_buttons;
  QLabel* m_icon;
  QLabel* m_text;
  QToolButton* m_close;
  QPointer<QWidget> m_focusBefore;
};

}  // namespace glossmill
