#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Something to do about a piece of news. It is done once: whoever chooses it has read the news.
struct NewsAction {
  std::string title;  ///< in the user's language
  std::function<void()> perform;
};

enum class NewsKind {
  Offer,    ///< nothing is the matter: it waits until nobody has other news
  Note,     ///< good to know
  Warning,  ///< something is, or would be, lost
};

/// What the quiet bar of the window says, in the user's language, and what can be done about it.
struct News {
  std::string id;  ///< of its subject: newer news of one subject takes the place of older
  std::string text;
  std::vector<NewsAction> actions;
  NewsKind kind = NewsKind::Note;
};

/// Where news of the open project is put up; all of it is taken down when the project is closed. Main thread.
class NewsBoard {
 public:
  virtual ~NewsBoard() = default;
  /// Shows the news, now or when its turn comes.
  virtual void post(News news) = 0;
  /// What it was about is over; harmless when there is no such news.
  virtual void withdraw(std::string_view id) = 0;
  virtual void clear() = 0;
};

}  // namespace glossmill
