#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/Bundle.h"

namespace glossmill {

/// Resources that are built into the program, so that it runs from anywhere.
class EmbeddedBundle : public Bundle {
 public:
  /// English key to the text in the user's language.
  using StringsTable = std::map<std::string, std::string, std::less<>>;

  explicit EmbeddedBundle(StringsTable strings = {}) : m_strings(std::move(strings)) {}

  std::string localizedString(std::string_view key) const override;
  Result<std::string> resource(std::string_view name, std::string_view type) const override;

 private:
  const StringsTable m_strings;
};

}  // namespace glossmill
