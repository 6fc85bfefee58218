#include "desktop/windows/DirectoryDrop.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <utility>

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

/// Empty when anything but one directory is dragged.
QString draggedDirectory(const QMimeData& data) {
  if (data.urls().size() != 1) return {};
  const QString path = data.urls().first().toLocalFile();
  return QFileInfo(path).isDir() ? path : QString();
}

}  // namespace

DirectoryDrop::DirectoryDrop(QWidget& window, std::function<bool()> canTake, std::function<void(FileUrl)> take)
    : QObject(&window), m_canTake(std::move(canTake)), m_take(std::move(take)) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

bool DirectoryDrop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);
  auto& drop = *static_cast<QDropEvent*>(event);
  const QString directory = draggedDirectory(*drop.mimeData());
  if (directory.isEmpty() || !m_canTake()) {
    drop.ignore();
    return true;
  }
  drop.acceptProposedAction();
  if (event->type() == QEvent::DragEnter) return true;
  // The program that is dragged from waits until this event is over, and opening may ask a question.
  QMetaObject::invokeMethod(
      this, [this, directory] { m_take(FileUrl(fromQt(directory))); }, Qt::QueuedConnection);
  return true;
}

}  // namespace glossmill
