#include "desktop/host/MailboxPump.h"

#include <QCoreApplication>
#include <QEvent>

namespace glossmill {

namespace {

QEvent::Type wakeEvent() {
  static const auto kType = static_cast<QEvent::Type>(QEvent::registerEventType());
  return kType;
}

}  // namespace

MailboxPump::MailboxPump(MainThreadMailbox& mailbox) : m_mailbox(mailbox) {
  m_mailbox.setWakeCallback([this] { QCoreApplication::postEvent(this, new QEvent(wakeEvent())); });
}

bool MailboxPump::event(QEvent* event) {
  if (event->type() != wakeEvent()) return QObject::event(event);
  m_mailbox.drain();
  return true;
}

}  // namespace glossmill
