#pragma once

#include <string>
#include <string_view>

#include "text/Result.h"

namespace glossmill {

/// The application's own resources. Any thread.
class Bundle {
 public:
  virtual ~Bundle() = default;
  /// The program's text for an English key in the user's language; the key itself when there is no translation.
  virtual std::string localizedString(std::string_view key) const = 0;
  /// The bytes of a resource such as "ISO-639-2", "csv".
  virtual Result<std::string> resource(std::string_view name, std::string_view type) const = 0;
};

}  // namespace glossmill
