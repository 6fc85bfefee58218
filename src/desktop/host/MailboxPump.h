#pragma once

#include <QObject>

#include "host/MainThreadMailbox.h"

namespace glossmill {

/// Drains the mailbox of the background jobs from the event loop: one posted event wakes it, and a turn takes a few
/// milliseconds at most. Lives on the main thread, and longer than the jobs.
class MailboxPump : public QObject {
 public:
  explicit MailboxPump(MainThreadMailbox& mailbox);

  bool event(QEvent* event) override;

 private:
  MainThreadMailbox& m_mailbox;
};

}  // namespace glossmill
