#include "host/LocalNotificationCenter.h"

#include <utility>

namespace glossmill {

void LocalNotificationCenter::addObserver(const void* observer, std::string_view name, Handler handler) {
  m_registrations.push_back(
      std::make_shared<Registration>(Registration{observer, std::string(name), std::move(handler)}));
}

void LocalNotificationCenter::removeObserver(const void* observer) {
  std::erase_if(m_registrations, [observer](const std::shared_ptr<Registration>& registration) {
    if (registration->observer != observer) return false;
    registration->isRemoved = true;
    return true;
  });
}

void LocalNotificationCenter::post(std::string_view name, const void* object) {
  const std::vector<std::shared_ptr<Registration>> registrations = m_registrations;
  for (const std::shared_ptr<Registration>& registration : registrations) {
    if (registration->name == name && !registration->isRemoved) registration->handler(object);
  }
}

}  // namespace glossmill
