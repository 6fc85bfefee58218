#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "platform/FileUrl.h"

namespace glossmill {

/// Takes one directory that is dropped on a window. Belongs to the window.
class DirectoryDrop : public QObject {
 public:
  /// `canTake` is asked before a directory is accepted; `take` is called when the drop is over.
  DirectoryDrop(QWidget& window, std::function<bool()> canTake, std::function<void(FileUrl)> take);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool()> m_canTake;
  std::function<void(FileUrl)> m_take;
};

}  // namespace glossmill
