#include "model/Edit.h"

#include "model/LocalizeString.h"

namespace glossmill {

Edit editOf(std::shared_ptr<LocalizeString> record, LanguageCode language, std::optional<std::string> after) {
  Edit edit{std::move(record), language, std::nullopt, std::move(after)};
  if (const auto former = edit.record->languagesDict().find(language)) edit.before = std::string(*former);
  return edit;
}

}  // namespace glossmill
