#include "model/StatusTexts.h"

#include "text/Format.h"

namespace glossmill {

StatusTexts::StatusTexts(const Bundle& bundle)
    : incompleteString(bundle.localizedString("Incomplete")),
      completeString(bundle.localizedString("Complete")),
      automaticString(bundle.localizedString("Automatic")),
      ignoredString(bundle.localizedString("Ignored")),
      m_missingFormat(bundle.localizedString("%ld missing")) {}

std::string StatusTexts::missingString(std::int64_t count) const {
  return formatText(m_missingFormat, {count});
}

}  // namespace glossmill
