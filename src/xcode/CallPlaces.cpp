#include "xcode/CallPlaces.h"

#include <algorithm>

#include "text/ByteSearch.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

bool isWordAt(std::string_view text, std::size_t at) {
  return at < text.size() && isWordByte(text[at]);
}

/// Says whether a continuation joins the word to another in front of it or behind it.
bool isContinued(std::string_view text, const NameSearch::Hit& word) {
  const std::size_t behind = afterContinuations(text, word.end);
  if (behind != word.end && isWordAt(text, behind)) return true;
  const std::size_t before = beforeContinuations(text, word.begin, 0);
  return before != word.begin && before > 0 && isWordByte(text[before - 1]);
}

/// Behind the word at `at` and all that continuations join to it.
std::size_t joinedWordEnd(std::string_view text, std::size_t at) {
  std::size_t end = plainWordEnd(text, at);
  std::size_t next = afterContinuations(text, end);
  while (next != end && isWordAt(text, next)) {
    end = plainWordEnd(text, next);
    next = afterContinuations(text, end);
  }
  return end;
}

/// The names that a continuation runs through.
std::vector<CallPlace> joinedPlaces(std::string_view text, const RoutineTable& routines) {
  std::vector<CallPlace> places;
  std::size_t floor = 0;
  std::size_t at = findByte(text, '\\', 0);
  while (at < text.size()) {
    const std::size_t next = afterContinuations(text, at);
    const bool joins = next != at && at > floor && isWordByte(text[at - 1]) && isWordAt(text, next);
    if (joins) {
      std::size_t begin = at;
      while (begin > floor && isWordByte(text[begin - 1])) --begin;
      floor = joinedWordEnd(text, begin);
      const Routine* routine = routines.find(withoutContinuations(text.substr(begin, floor - begin)));
      if (routine) places.push_back({begin, routine});
    }
    at = findByte(text, '\\', joins ? floor : std::max(next, at + 1));
  }
  return places;
}

bool isBefore(const CallPlace& a, const CallPlace& b) {
  return a.begin < b.begin;
}

}  // namespace

void addCallPlaces(std::vector<CallPlace>& places, const std::vector<CallPlace>& more) {
  const auto middle = static_cast<std::ptrdiff_t>(places.size());
  places.insert(places.end(), more.begin(), more.end());
  std::inplace_merge(places.begin(), places.begin() + middle, places.end(), isBefore);
}

std::vector<CallPlace> callPlacesInC(std::string_view text, const RoutineTable& routines) {
  std::vector<CallPlace> places;
  const NameSearch& search = routines.search();
  for (NameSearch::Hit hit = search.next(text, 0); hit.begin < text.size(); hit = search.next(text, hit.end)) {
    if (!isContinued(text, hit)) places.push_back({hit.begin, &routines.routines()[hit.name]});
  }
  addCallPlaces(places, joinedPlaces(text, routines));
  return places;
}

std::vector<CallPlace> callPlacesInSwift(std::string_view text, const RoutineTable& routines) {
  std::vector<CallPlace> places;
  const Routine* constructor = nullptr;
  const NameSearch& search = routines.search();
  for (NameSearch::Hit hit = search.next(text, 0); hit.begin < text.size(); hit = search.next(text, hit.end)) {
    const Routine& routine = routines.routines()[hit.name];
    if (routine.form == CallForm::Constructor) {
      constructor = &routine;
    } else {
      places.push_back({hit.begin, &routine});
    }
  }
  if (!constructor) return places;
  static const NameSearch kStringSearch({"String"});
  std::vector<CallPlace> strings;
  for (NameSearch::Hit hit = kStringSearch.next(text, 0); hit.begin < text.size();
       hit = kStringSearch.next(text, hit.end)) {
    strings.push_back({hit.begin, constructor});
  }
  addCallPlaces(places, strings);
  return places;
}

}  // namespace glossmill
