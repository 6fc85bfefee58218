#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Something to do about a piece of news.
struct NewsAction {
  std::string title;  ///< in the user's language
  std::function<void()> perform;
};

/// What the quiet bar of the window says, in the user's language, and what can be done about it.
struct News {
  std::string id;  ///< of its kind: newer news of one kind takes the place of older
  std::string text;
  std::vector<NewsAction> actions;
};

/// The news of a window: one piece is shown, the others wait behind it in the order in which they came. Main thread.
class NewsQueue {
 public:
  /// Called whenever another piece is to be shown, or none.
  std::function<void()> changed;

  /// Shows the news, now or when its turn comes.
  void add(News news);
  /// The piece that is shown; null when there is none. Valid until the queue changes.
  const News* current() const { return m_waiting.empty() ? nullptr : &m_waiting.front(); }
  /// How many wait behind it.
  std::size_t waiting() const { return m_waiting.empty() ? 0 : m_waiting.size() - 1; }

  /// The user has read the piece that is shown.
  void dismiss();
  /// Dismisses it and does what its action with this number does.
  void perform(std::size_t action);
  /// What it was about is over.
  void withdraw(std::string_view id);
  void clear();

 private:
  void tell() const;

  std::deque<News> m_waiting;
};

}  // namespace glossmill
