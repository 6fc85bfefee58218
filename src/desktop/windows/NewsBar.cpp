#include "desktop/windows/NewsBar.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "desktop/host/QtText.h"

namespace glossmill {

NewsBar::NewsBar(NewsQueue& queue, const Bundle& bundle, QWidget* parent)
    : QFrame(parent),
      m_queue(queue),
      m_bundle(bundle),
      m_buttons(new QHBoxLayout),
      m_text(new QLabel),
      m_close(new QToolButton) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  m_text->setForegroundRole(QPalette::ToolTipText);
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  m_close->setAutoRaise(true);
  m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  m_close->setFocusPolicy(Qt::TabFocus);
  m_close->setAccessibleName(toQt(bundle.localizedString("Close this message")));
  m_close->setToolTip(m_close->accessibleName());
  connect(m_close, &QToolButton::clicked, this, [this] { m_queue.dismiss(); });

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 5, 6, 5);
  layout->addWidget(m_text, 1);
  layout->addLayout(m_buttons);
  layout->addWidget(m_close);
  m_queue.changed = [this] { show(m_queue.current()); };
  show(m_queue.current());
}

NewsBar::~NewsBar() {
  m_queue.changed = nullptr;
}

void NewsBar::show(const News* news) {
  const bool hadFocus = isAncestorOf(QApplication::focusWidget());
  while (QLayoutItem* item = m_buttons->takeAt(0)) {
    item->widget()->deleteLater();
    item->widget()->hide();
    delete item;
  }
  setVisible(news != nullptr);
  if (!news) {
    if (hadFocus) giveFocusBack();
    return;
  }
  m_text->setText(toQt(news->text));
  setAccessibleName(m_text->text());
  addButtons(*news);
  if (hadFocus) m_close->setFocus(Qt::OtherFocusReason);
  announce();
}

void NewsBar::addButtons(const News& news) {
  QWidget* before = nullptr;
  for (std::size_t number = 0; number < news.actions.size(); ++number) {
    auto* button = new QPushButton(toQt(news.actions[number].title));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, number] { m_queue.perform(number); });
    m_buttons->addWidget(button);
    if (before) setTabOrder(before, button);
    before = button;
  }
  if (before) setTabOrder(before, m_close);
}

void NewsBar::announce() {
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void NewsBar::switchFocus() {
  if (!isVisible()) return;
  if (isAncestorOf(QApplication::focusWidget())) {
    giveFocusBack();
    return;
  }
  m_focusBefore = QApplication::focusWidget();
  const QLayoutItem* first = m_buttons->itemAt(0);
  QWidget* target = first ? first->widget() : m_close;
  target->setFocus(Qt::ShortcutFocusReason);
}

void NewsBar::giveFocusBack() {
  if (m_focusBefore) m_focusBefore->setFocus(Qt::OtherFocusReason);
}

void NewsBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) {
    QFrame::keyPressEvent(event);
    return;
  }
  giveFocusBack();
  m_queue.dismiss();
}

}  // namespace glossmill
