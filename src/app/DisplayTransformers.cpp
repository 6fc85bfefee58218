#include "app/DisplayTransformers.h"

#include "text/Format.h"

namespace glossmill {

Color StatusToTextColorTransformer::transformedValue(std::optional<Status> status) {
  if (status == Status::Incomplete) return kRedColor;
  if (status == Status::Automatic) return kGreenColor;
  if (status == Status::Ignored) return kBlueColor;
  return kBlackColor;
}

std::string ArrayCountToLabelTextTransformer::transformedValue(std::optional<std::size_t> count) {
  return formatText("%ld", {static_cast<std::int64_t>(count.value_or(0))});
}

Color BOOLToColorTransformer::transformedValue(std::optional<bool> flag) {
  return flag.value_or(false) ? kGreenColor : kBlackColor;
}

}  // namespace glossmill
