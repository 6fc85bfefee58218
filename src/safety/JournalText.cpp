#include "safety/JournalText.h"

#include <charconv>
#include <utility>

#include "text/PercentForm.h"
#include "text/Split.h"

namespace glossmill {

namespace {

constexpr std::string_view kEditWord = "edit";
constexpr std::string_view kNoTextWord = "%-";  // no percent form looks so
constexpr std::string_view kEndWord = ".";      // tells a whole line from one that was cut off
constexpr std::size_t kJournalWords = 8;

std::string formOf(const std::optional<std::string>& text) {
  return text ? percentForm(*text) : std::string(kNoTextWord);
}

/// False when the word is neither a text nor none.
bool takeText(std::string_view word, std::optional<std::string>& text) {
  if (word == kNoTextWord) return true;
  text = fromPercentForm(word);
  return text.has_value();
}

bool takeText(std::string_view word, std::string& text) {
  std::optional<std::string> plain = fromPercentForm(word);
  if (!plain) return false;
  text = std::move(*plain);
  return true;
}

bool takeTime(std::string_view word, std::int64_t& time) {
  const auto [end, problem] = std::from_chars(word.data(), word.data() + word.size(), time);
  return problem == std::errc() && end == word.data() + word.size();
}

std::optional<JournalEdit> editOf(std::string_view line) {
  const std::vector<std::string_view> words = split(line, ' ');
  if (words.size() != kJournalWords || words.front() != kEditWord || words.back() != kEndWord) return std::nullopt;
  JournalEdit edit;
  const bool isWhole = takeTime(words[1], edit.time) && takeText(words[2], edit.table) &&
                       takeText(words[3], edit.key) && takeText(words[4], edit.language) &&
                       takeText(words[5], edit.before) && takeText(words[6], edit.after);
  return isWhole ? std::optional(std::move(edit)) : std::nullopt;
}

}  // namespace

std::string journalLine(const JournalEdit& edit) {
  std::string line(kEditWord);
  for (const std::string& word : {std::to_string(edit.time), percentForm(edit.table), percentForm(edit.key),
                                  percentForm(edit.language), formOf(edit.before), formOf(edit.after)}) {
    line += ' ';
    line += word;
  }
  return line + ' ' + std::string(kEndWord) + '\n';
}

std::vector<JournalEdit> readJournal(std::string_view text) {
  std::vector<JournalEdit> edits;
  for (const std::string_view line : split(text, '\n')) {
    std::optional<JournalEdit> edit = editOf(line);
    if (edit) edits.push_back(std::move(*edit));
  }
  return edits;
}

}  // namespace glossmill
