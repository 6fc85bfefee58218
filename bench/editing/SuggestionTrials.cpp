#include "editing/SuggestionTrials.h"

#include "model/SourceText.h"
#include "search/Suggestions.h"
#include "timing/Findings.h"

namespace glossmill::bench {

namespace {

constexpr int kGatherings = 3;
constexpr std::size_t kShown = 9;

}  // namespace

void runSuggestionTrials(const ProjectWindowController& project, int rounds) {
  const CancelFlag never;
  const StringArray& strings = project.stringList();
  const LanguageArray& languages = *project.languagesList();
  const LanguageCode source = languages.front()->code();
  std::unique_ptr<Suggestions> suggestions;
  Samples gathering;
  for (int round = 0; round < kGatherings; ++round) {
    const Stopwatch time;
    suggestions = Suggestions::of(Suggestions::snapshot(strings, source), never);
    gathering.add(time.seconds());
  }
  report("source texts gathered", gathering);

  Samples visits;
  std::size_t found = 0;
  for (int round = 0; round < rounds; ++round) {
    const LocalizeString& record = *strings[static_cast<std::size_t>(round) * 7919 % strings.size()];
    const Stopwatch time;
    const std::string text(sourceTextOf(record, source));
    found += suggestions->suggest(record, text, languages.back()->code(), kShown).size();
    visits.add(time.seconds());
  }
  if (found == 0) giveUp("nothing was suggested");
  report("suggestions for a string", visits);
}

}  // namespace glossmill::bench
