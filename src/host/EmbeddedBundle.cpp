#include "host/EmbeddedBundle.h"

#include "host/IsoTableResource.h"

namespace glossmill {

std::string EmbeddedBundle::localizedString(std::string_view key) const {
  const auto found = m_strings.find(key);
  return found == m_strings.end() ? std::string(key) : found->second;
}

Result<std::string> EmbeddedBundle::resource(std::string_view name, std::string_view type) const {
  if (name == "ISO-639-2" && type == "csv") return std::string(isoTableResource());
  return Error{"The program has no resource \"" + std::string(name) + "." + std::string(type) + "\"."};
}

}  // namespace glossmill
