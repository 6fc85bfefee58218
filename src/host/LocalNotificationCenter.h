#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/NotificationCenter.h"

namespace glossmill {

/// Notifications within the program. Main thread only. Handlers may add and remove observers: one that is removed
/// during a post is not called any more, one that is added hears the next post first.
class LocalNotificationCenter : public NotificationCenter {
 public:
  void addObserver(const void* observer, std::string_view name, Handler handler) override;
  void removeObserver(const void* observer) override;
  void post(std::string_view name, const void* object) override;

 private:
  struct Registration {
    const void* observer = nullptr;
    std::string name;
    Handler handler;
    bool isRemoved = false;
  };

  std::vector<std::shared_ptr<Registration>> m_registrations;
};

}  // namespace glossmill
