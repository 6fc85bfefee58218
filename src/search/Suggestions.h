#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "model/Language.h"
#include "model/LocalizeString.h"
#include "platform/CancelFlag.h"
#include "search/SimilarTexts.h"

namespace glossmill {

/// A translation of the same or a similar source text elsewhere in the project.
struct Suggestion {
  std::string translation;
  std::string source;                      ///< the text that it translates
  double likeness = 0;                     ///< of the two source texts: 1 for the same
  std::shared_ptr<LocalizeString> record;  ///< where it stands; the first where it stands several times
};

/// How another language says what a record says.
struct OtherTranslation {
  std::shared_ptr<Language> language;
  std::string text;
};

/// The source texts of an open project as they were at one moment. Translations are looked up when they are asked for.
class Suggestions {
 public:
  /// What is suggested is at least so similar.
  static constexpr double kLeastLikeness = 0.6;

  /// What building needs, made on the main thread; a copy of the source texts.
  struct Snapshot {
    StringArray records;
    std::vector<std::string> sources;  ///< one for each record
  };
  static Snapshot snapshot(StringArray records, LanguageCode sourceLanguage);
  /// Any thread. Null when it was cancelled.
  static std::unique_ptr<Suggestions> of(Snapshot snapshot, const CancelFlag& canceled);

  /// Translations for the record, whose source text is given, into the language: those of the same text first, then by
  /// likeness; each translation once, at most `most`. Empty ones are none, nor is what the record itself says. Main
  /// thread.
  std::vector<Suggestion> suggest(const LocalizeString& record, const std::string& source, LanguageCode language,
                                  std::size_t most) const;

 private:
  Suggestions(StringArray records, std::unique_ptr<SimilarTexts> texts)
      : m_records(std::move(records)), m_texts(std::move(texts)) {}

  StringArray m_records;
  std::unique_ptr<SimilarTexts> m_texts;
};

/// What the other languages say, in their order, without those that say nothing. Main thread.
std::vector<OtherTranslation> otherTranslations(const LocalizeString& record, LanguageCode language,
                                                const LanguageArray& languages);

}  // namespace glossmill
