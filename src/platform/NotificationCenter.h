#pragma once

#include <functional>
#include <string_view>

namespace glossmill {

/// Passes named notifications to whoever asked for them, at once and on the poster's thread.
class NotificationCenter {
 public:
  /// `object` is what the notification is about; it may be null.
  using Handler = std::function<void(const void* object)>;

  virtual ~NotificationCenter() = default;
  virtual void addObserver(const void* observer, std::string_view name, Handler handler) = 0;
  /// Removes the observer from all notifications; harmless when it has none.
  virtual void removeObserver(const void* observer) = 0;
  virtual void post(std::string_view name, const void* object) = 0;
};

}  // namespace glossmill
