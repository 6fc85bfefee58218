#include "desktop/host/SettingsDefaults.h"

#include <QStringList>

#include "desktop/host/QtText.h"

namespace glossmill {

std::optional<long> SettingsDefaults::integerForKey(std::string_view key) {
  if (!m_settings.contains(toQt(key))) return std::nullopt;
  return m_settings.value(toQt(key)).toInt();
}

void SettingsDefaults::setInteger(std::string_view key, long value) {
  if (integerForKey(key) == value) return;
  m_settings.setValue(toQt(key), static_cast<int>(value));
}

std::optional<std::vector<std::string>> SettingsDefaults::stringArrayForKey(std::string_view key) {
  if (!m_settings.contains(toQt(key))) return std::nullopt;
  std::vector<std::string> values;
  // A list of one comes back as a plain string, which toStringList() turns into a list again.
  for (const QString& value : m_settings.value(toQt(key)).toStringList()) values.push_back(fromQt(value));
  return values;
}

void SettingsDefaults::setStringArray(std::string_view key, const std::vector<std::string>& values) {
  if (values.empty()) {
    m_settings.remove(toQt(key));
    return;
  }
  if (stringArrayForKey(key) == values) return;
  QStringList list;
  for (const std::string& value : values) list.append(toQt(value));
  m_settings.setValue(toQt(key), list);
}

}  // namespace glossmill
