#include "model/StatusTexts.h"

#include "text/Format.h"

namespace glossmill {

StatusTexts::StatusTexts(const Bundle& bundle)
    : incompleteString(bundle.localizedString("Incomplete")),
      completeString(bundle.localizedString("Complete")),
      automaticString(bundle.localizedString("Automatic")),
      ignoredString(bundle.localizedString("Ignored")),
      m_missingFormat(bundle.localizedString("%ld missing")) {}

const std::string& StatusTexts::textOf(Status status) const {
  switch (status) {
    case Status::Complete:
      return completeString;
    case Status::Automatic:
      return automaticString;
    case Status::Ignored:
      return ignoredString;
    case Status::Incomplete:
      break;
  }
  return incompleteString;
}

std::string StatusTexts::missingString(std::int64_t count) const {
  return formatText(m_missingFormat, {count});
}

}  // namespace glossmill
