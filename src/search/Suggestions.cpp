#include "search/Suggestions.h"

#include <algorithm>
#include <utility>

#include "model/SourceText.h"

namespace glossmill {

namespace {

/// So many similar texts are looked at for each suggestion that is wanted, since some are not translated.
constexpr std::size_t kTextsForOne = 8;

bool holds(const std::vector<Suggestion>& suggestions, std::string_view translation) {
  return std::any_of(suggestions.begin(), suggestions.end(),
                     [translation](const Suggestion& known) { return known.translation == translation; });
}

}  // namespace

Suggestions::Snapshot Suggestions::snapshot(StringArray records, LanguageCode sourceLanguage) {
  Snapshot snapshot{std::move(records), {}};
  snapshot.sources.reserve(snapshot.records.size());
  for (const std::shared_ptr<LocalizeString>& record : snapshot.records) {
    snapshot.sources.emplace_back(sourceTextOf(*record, sourceLanguage));
  }
  return snapshot;
}

std::unique_ptr<Suggestions> Suggestions::of(Snapshot snapshot, const CancelFlag& canceled) {
  std::unique_ptr<SimilarTexts> texts = SimilarTexts::of(std::move(snapshot.sources), canceled);
  if (!texts) return nullptr;
  return std::unique_ptr<Suggestions>(new Suggestions(std::move(snapshot.records), std::move(texts)));
}

std::vector<Suggestion> Suggestions::suggest(const LocalizeString& record, const std::string& source,
                                             LanguageCode language, std::size_t most) const {
  const std::string_view own = record.languagesDict().find(language).value_or(std::string_view());
  std::vector<Suggestion> suggestions;
  for (const SimilarTexts::Found& found : m_texts->like(source, kLeastLikeness, most * kTextsForOne)) {
    for (const std::size_t place : m_texts->placesOf(found.place)) {
      const std::shared_ptr<LocalizeString>& other = m_records[place];
      const std::string_view text = other->languagesDict().find(language).value_or(std::string_view());
      if (other.get() == &record || text.empty() || text == own || holds(suggestions, text)) continue;
      if (suggestions.size() == most) return suggestions;
      suggestions.push_back({std::string(text), m_texts->text(place), found.likeness, other});
    }
  }
  return suggestions;
}

std::vector<OtherTranslation> otherTranslations(const LocalizeString& record, LanguageCode language,
                                                const LanguageArray& languages) {
  std::vector<OtherTranslation> others;
  for (const std::shared_ptr<Language>& other : languages) {
    if (other->code() == language) continue;
    const auto text = record.languagesDict().find(other->code());
    if (text && !text->empty()) others.push_back({other, std::string(*text)});
  }
  return others;
}

}  // namespace glossmill
