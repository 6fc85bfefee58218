#include "model/Variation.h"

#include <utility>

#include "text/PluralCategories.h"

namespace glossmill {

namespace {

std::string spelled(const VariationStep& step) {
  const bool isCategory = isPluralCategory(step.name);
  if (step.kind == kPartKind) return "@" + step.name;
  if (step.kind == kPluralKind && isCategory) return step.name;
  if (step.kind == kDeviceKind && !isCategory && !step.name.starts_with('@')) return step.name;
  return step.kind + ":" + step.name;
}

}  // namespace

std::optional<std::string> rowName(std::string_view key, const Variation& variation) {
  std::string name(key);
  for (const VariationStep& step : variation) {
    const bool isReadable = !step.name.empty() && step.name.find(kVariationMark) == std::string::npos &&
                            step.name.find(':') == std::string::npos;
    if (!isReadable) return std::nullopt;
    name.append(kVariationMark).append(spelled(step));
  }
  return name;
}

bool endsInPlural(const Variation& variation) {
  return !variation.empty() && variation.back().kind == kPluralKind;
}

Variation withLastName(Variation variation, std::string_view name) {
  variation.back().name = name;
  return variation;
}

}  // namespace glossmill
