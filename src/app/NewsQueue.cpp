#include "app/NewsQueue.h"

#include <algorithm>
#include <utility>

namespace glossmill {

namespace {

bool offers(const News& news) {
  return news.kind == NewsKind::Offer;
}

}  // namespace

void NewsQueue::post(News news) {
  const auto known =
      std::find_if(m_waiting.begin(), m_waiting.end(), [&news](const News& other) { return other.id == news.id; });
  if (known == m_waiting.end()) {
    const bool isOffer = news.kind == NewsKind::Offer;
    const auto place = isOffer ? m_waiting.end() : std::find_if(m_waiting.begin(), m_waiting.end(), offers);
    m_waiting.insert(place, std::move(news));
  } else {
    *known = std::move(news);
  }
  tell();
}

void NewsQueue::dismiss() {
  if (m_waiting.empty()) return;
  m_waiting.pop_front();
  tell();
}

/// The action comes last: it may bring news of its own.
void NewsQueue::perform(std::size_t action) {
  const News* news = current();
  if (!news || action >= news->actions.size()) return;
  const std::function<void()> chosen = news->actions[action].perform;
  dismiss();
  if (chosen) chosen();
}

void NewsQueue::withdraw(std::string_view id) {
  if (std::erase_if(m_waiting, [id](const News& news) { return news.id == id; }) != 0) tell();
}

void NewsQueue::clear() {
  if (m_waiting.empty()) return;
  m_waiting.clear();
  tell();
}

void NewsQueue::tell() const {
  if (changed) changed();
}

}  // namespace glossmill
