#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/NotificationCenter.h"

namespace glossmill {

/// Writes down what is posted, and passes it on to observers as they were added.
class FakeNotificationCenter : public NotificationCenter {
 public:
  struct Post {
    std::string name;
    const void* object = nullptr;
  };

  const std::vector<Post>& posts() const { return m_posts; }

  void addObserver(const void* observer, std::string_view name, Handler handler) override {
    m_observers.push_back({observer, std::string(name), std::move(handler)});
  }
  void removeObserver(const void* observer) override {
    std::erase_if(m_observers, [observer](const Observer& one) { return one.observer == observer; });
  }
  void post(std::string_view name, const void* object) override {
    m_posts.push_back({std::string(name), object});
    for (const Observer& one : m_observers) {
      if (one.name == name) one.handler(object);
    }
  }

 private:
  struct Observer {
    const void* observer = nullptr;
    std::string name;
    Handler handler;
  };

  std::vector<Observer> m_observers;
  std::vector<Post> m_posts;
};

}  // namespace glossmill
