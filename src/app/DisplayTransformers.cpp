#include "app/DisplayTransformers.h"

#include "text/Format.h"

namespace glossmill {

Color StatusToTextColorTransformer::transformedValue(const std::optional<std::string>& status) const {
  if (status == m_texts.incompleteString) return kRedColor;
  if (status == m_texts.automaticString) return kGreenColor;
  if (status == m_texts.ignoredString) return kBlueColor;
  return kBlackColor;
}

std::string ArrayCountToLabelTextTransformer::transformedValue(std::optional<std::size_t> count) {
  return formatText("%ld", {static_cast<std::int64_t>(count.value_or(0))});
}

Color BOOLToColorTransformer::transformedValue(std::optional<bool> flag) {
  return flag.value_or(false) ? kGreenColor : kBlackColor;
}

}  // namespace glossmill
