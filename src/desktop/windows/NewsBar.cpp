#include "desktop/windows/NewsBar.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

constexpr int kIconSize = 22;
constexpr double kTint = 0.16;  ///< of the bar, by the colour of selections

/// What assistive technology takes for an alert, so that it is read aloud when it appears.
class AccessibleBar : public QAccessibleWidget {
 public:
  explicit AccessibleBar(QWidget* bar) : QAccessibleWidget(bar, QAccessible::AlertMessage) {}
};

QAccessibleInterface* accessibleBar(const QString&, QObject* object) {
  auto* bar = dynamic_cast<NewsBar*>(object);
  return bar ? new AccessibleBar(bar) : nullptr;
}

void installAccessibleBar() {
  static const bool kInstalled = [] {
    QAccessible::installFactory(accessibleBar);
    return true;
  }();
  static_cast<void>(kInstalled);
}

int mixed(int from, int to) {
  return from + static_cast<int>((to - from) * kTint);
}

QColor mixed(const QColor& from, const QColor& to) {
  return {mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue())};
}

QToolButton* closeButton(const QStyle& style, const QString& name) {
  auto* button = new QToolButton;
  button->setObjectName(QStringLiteral("closeNews"));
  button->setAutoRaise(true);
  button->setIcon(style.standardIcon(QStyle::SP_TitleBarCloseButton));
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAccessibleName(name);
  button->setToolTip(name);
  return button;
}

QLabel* textLabel() {
  auto* label = new QLabel;
  label->setObjectName(QStringLiteral("newsText"));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  // A word that does not fit is better cut off than the whole window made wider by it.
  label->setMinimumWidth(120);
  return label;
}

}  // namespace

NewsBar::NewsBar(NewsQueue& queue, const Bundle& bundle)
    : m_queue(queue),
      m_buttons(new QHBoxLayout),
      m_icon(new QLabel),
      m_text(textLabel()),
      m_close(closeButton(*style(), toQt(bundle.localizedString("Close this message")))) {
  installAccessibleBar();
  setObjectName(QStringLiteral("newsBar"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  takeColors();
  connect(m_close, &QToolButton::clicked, this, [this] { m_queue.dismiss(); });
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 5, 6, 5);
  layout->setSpacing(8);
  layout->addWidget(m_icon);
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
  removeButtons();
  setVisible(news != nullptr);
  if (news) {
    m_text->setText(shownText(news->text));
    setAccessibleName(m_text->text());
    showKind(news->kind);
    addButtons(*news);
    if (hadFocus) m_close->setFocus(Qt::OtherFocusReason);
    announce();
  } else if (hadFocus) {
    giveFocusBack();
  }
  if (changed) changed();
}

void NewsBar::removeButtons() {
  while (QLayoutItem* item = m_buttons->takeAt(0)) {
    item->widget()->deleteLater();
    item->widget()->hide();
    delete item;
  }
}

void NewsBar::showKind(NewsKind kind) {
  const bool warns = kind == NewsKind::Warning;
  const QIcon icon = style()->standardIcon(warns ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation);
  m_icon->setPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
}

/// A little of the colour of selections tells the bar from the window, whether that is light or dark.
void NewsBar::takeColors() {
  QPalette colors;
  colors.setColor(QPalette::Window, mixed(colors.color(QPalette::Window), colors.color(QPalette::Highlight)));
  setPalette(colors);
}

void NewsBar::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) takeColors();
}

void NewsBar::addButtons(const News& news) {
  QWidget* before = nullptr;
  for (std::size_t number = 0; number < news.actions.size(); ++number) {
    auto* button = new QPushButton(toQt(news.actions[number].title));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, number] { m_queue.perform(number); });
    m_buttons->addWidget(button);
    button->show();
    if (before) setTabOrder(before, button);
    before = button;
  }
  if (before) setTabOrder(before, m_close);
}

/// Some screen readers listen for the appearance of an alert, others for the event of that name.
void NewsBar::announce() {
  for (const QAccessible::Event kind : {QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent event(this, kind);
    QAccessible::updateAccessibility(&event);
  }
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
