#include "desktop/windows/LogWindowInterface.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QShortcut>

#include "desktop/host/QtText.h"
#include "desktop/host/WidgetWindow.h"
#include "desktop/look/Icons.h"
#include "desktop/windows/WindowMemory.h"

namespace glossmill {

namespace {

constexpr int kRaiseInterval = 50;  // milliseconds

}  // namespace

LogWindowInterface::LogWindowInterface(LogWindowController& log) : m_log(log) {
  m_widgets.setupUi(&m_widget);
  m_widget.setAttribute(Qt::WA_ShowWithoutActivating);
  QObject::connect(m_widgets.copyButton, &QPushButton::clicked, &m_widget, [this] { copyAll(); });
  QObject::connect(m_widgets.clearButton, &QPushButton::clicked, &m_widget, [this] { m_log.clearLog(); });
  setUpSearch();
  restoreLayout(m_widget);
}

LogWindowInterface::~LogWindowInterface() {
  saveLayout(m_widget);
}

void LogWindowInterface::setUpSearch() {
  const auto next = [this] { m_widgets.textView->findNext(m_widgets.searchField->text()); };
  const auto previous = [this] { m_widgets.textView->findPrevious(m_widgets.searchField->text()); };
  m_widgets.searchField->addAction(icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
  QObject::connect(m_widgets.nextButton, &QPushButton::clicked, &m_widget, next);
  QObject::connect(m_widgets.previousButton, &QPushButton::clicked, &m_widget, previous);
  QObject::connect(m_widgets.searchField, &QLineEdit::returnPressed, &m_widget, next);
  addShortcut(QKeySequence(QStringLiteral("F3")), next);
  addShortcut(QKeySequence(QStringLiteral("Shift+F3")), previous);
  addShortcut(QKeySequence(QStringLiteral("Ctrl+F")), [this] { focusMainField(); });
  addShortcut(QKeySequence(QStringLiteral("Ctrl+W")), [this] { m_widget.close(); });
  addShortcut(QKeySequence(QStringLiteral("Escape")), [this] { m_widget.close(); });
}

void LogWindowInterface::addShortcut(const QKeySequence& key, const std::function<void()>& action) {
  auto* shortcut = new QShortcut(key, &m_widget);
  QObject::connect(shortcut, &QShortcut::activated, &m_widget, action);
}

void LogWindowInterface::copyAll() {
  QGuiApplication::clipboard()->setText(toQt(m_log.logText()));
}

void LogWindowInterface::setTitle(std::string_view title) {
  m_widget.setWindowTitle(toQt(title));
}

/// Asked for with every message, so many of them in a row raise the window once, at the beginning: a later moment could
/// put it over a window that was brought to the front meanwhile.
void LogWindowInterface::show() {
  if (!m_widget.isVisible() || m_widget.isMinimized()) showAgain(m_widget);
  if (m_lastRaise.isValid() && !m_lastRaise.hasExpired(kRaiseInterval)) return;
  m_widget.raise();
  m_lastRaise.start();
}

void LogWindowInterface::makeKeyAndOrderFront() {
  showAgain(m_widget);
  m_widget.raise();
  m_widget.activateWindow();
}

}  // namespace glossmill
