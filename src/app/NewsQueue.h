#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string_view>

#include "platform/NewsBoard.h"

namespace glossmill {

/// The news of a window: one piece is shown, the others wait behind it in the order in which they came, offers behind
/// all the rest. Main thread.
class NewsQueue : public NewsBoard {
 public:
  /// Called whenever another piece is to be shown, or none.
  std::function<void()> changed;

  void post(News news) override;
  void withdraw(std::string_view id) override;
  void clear() override;

  /// The piece that is shown; null when there is none. Valid until the queue changes.
  const News* current() const { return m_waiting.empty() ? nullptr : &m_waiting.front(); }
  /// How many wait behind it.
  std::size_t waiting() const { return m_waiting.empty() ? 0 : m_waiting.size() - 1; }

  /// The user has read the piece that is shown.
  void dismiss();
  /// Dismisses it and does what its action with this number does.
  void perform(std::size_t action);

 private:
  void tell() const;

  std::deque<News> m_waiting;
};

}  // namespace glossmill
