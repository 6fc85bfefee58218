#include "xcode/VariationShape.h"

#include <algorithm>
#include <array>

#include "text/PluralCategories.h"

namespace glossmill {

namespace {

template <typename List, typename Value>
bool isIn(const List& list, const Value& value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

/// Sorts variations: by their steps, plural categories from zero to other.
std::string orderOf(const Variation& variation) {
  static constexpr std::array<std::string_view, 6> kCategories = {"zero", "one", "two", "few", "many", "other"};
  std::string order;
  for (const VariationStep& step : variation) {
    const auto* const category = std::find(kCategories.begin(), kCategories.end(), step.name);
    const bool isPlural = step.kind == kPluralKind && category != kCategories.end();
    order += step.kind + '\1';
    order += isPlural ? std::string(1, static_cast<char>('0' + (category - kCategories.begin()))) : step.name;
    order += '\1';
  }
  return order;
}

}  // namespace

VariationShape::VariationShape(const std::vector<CatalogUnit>& units, const std::string& source,
                               const std::vector<std::string>& languages)
    : m_units(units), m_source(source), m_languages(languages) {
  m_isPlain = std::all_of(units.begin(), units.end(), [](const CatalogUnit& unit) { return unit.variation.empty(); });
  if (m_isPlain) {
    m_rows.emplace_back();
    return;
  }
  for (const std::string& language : languages) m_needed.emplace(language, neededIn(language));
  makeRows();
}

void VariationShape::makeRows() {
  std::map<std::string, Variation> rows{{"", {}}};
  const auto add = [&rows](const Variation& variation) { rows.emplace(orderOf(variation), variation); };
  for (const auto& [language, needed] : m_needed) std::for_each(needed.begin(), needed.end(), add);
  for (const CatalogUnit& unit : m_units) add(unit.variation);
  for (auto& [order, variation] : rows) m_rows.push_back(std::move(variation));
}

VariationShape::Variations VariationShape::variationsOf(const std::string& language) const {
  Variations variations;
  for (const CatalogUnit& unit : m_units) {
    if (unit.language == language) variations.push_back(unit.variation);
  }
  return variations;
}

VariationShape::Variations VariationShape::neededIn(const std::string& language) const {
  Variations models = variationsOf(language);
  if (models.empty()) models = variationsOf(m_source);
  if (models.empty()) models.emplace_back();
  const std::vector<std::string_view> categories = pluralCategories(language);
  Variations needed;
  for (const Variation& model : models) {
    if (!endsInPlural(model) || categories.empty()) {
      needed.push_back(model);
      continue;
    }
    for (const std::string_view category : categories) {
      Variation variation = withLastName(model, category);
      if (!isIn(needed, variation)) needed.push_back(std::move(variation));
    }
  }
  return needed;
}

std::vector<std::string> VariationShape::languagesWithout(const Variation& variation) const {
  std::vector<std::string> without;
  if (variationsOf(m_source).empty() && isIn(m_languages, m_source)) without.push_back(m_source);
  for (const auto& [language, needed] : m_needed) {
    if (!isIn(without, language) && !isIn(needed, variation)) without.push_back(language);
  }
  return without;
}

bool VariationShape::sourceVaries() const {
  const Variations variations = variationsOf(m_source);
  return !variations.empty() && !isIn(variations, Variation());
}

const CatalogUnit* VariationShape::sourceOf(const Variation& variation) const {
  const auto find = [this](const Variation& wanted) {
    const auto found = std::find_if(m_units.begin(), m_units.end(), [&](const CatalogUnit& unit) {
      return unit.language == m_source && unit.variation == wanted;
    });
    return found == m_units.end() ? nullptr : &*found;
  };
  const CatalogUnit* const own = find(variation);
  return own || !endsInPlural(variation) ? own : find(withLastName(variation, "other"));
}

}  // namespace glossmill
