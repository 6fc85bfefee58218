#include "cli/ScanNewsText.h"

#include <algorithm>
#include <iterator>

#include "cli/DisplayText.h"
#include "host/Paths.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

struct Words {
  std::string_view one;
  std::string_view many;
};

struct ProblemWords {
  std::string_view kind;
  Words words;
};

constexpr ProblemWords kProblems[] = {
    {"key-missing", {"call without a key", "calls without a key"}},
    {"key-not-literal", {"call whose key is no literal", "calls whose key is no literal"}},
    {"table-not-literal", {"call whose table is no literal", "calls whose table is no literal"}},
    {"interpolation", {"call with an interpolation", "calls with an interpolation"}},
    {"malformed-literal", {"call with a malformed literal", "calls with a malformed literal"}},
    {"call-not-closed", {"call without a closing parenthesis", "calls without a closing parenthesis"}},
    {"project-file", {"problem of a project file", "problems of project files"}},
    {"package-missing",
     {"project that is referenced and does not exist", "projects that are referenced and do not exist"}},
    {"file-missing", {"file that is listed and does not exist", "files that are listed and do not exist"}},
    {"source-unread", {"source that could not be read", "sources that could not be read"}},
    {"strings-unread", {"strings file that could not be read", "strings files that could not be read"}},
    {"strings-syntax", {"strings file with a mistake", "strings files with a mistake"}},
    {"repeated-key", {"key that a file holds more than once", "keys that a file holds more than once"}},
    {"not-read", {"file of a kind that is not read", "files of a kind that is not read"}},
};

Words wordsOfProblem(std::string_view kind) {
  const auto* const found = std::ranges::find(kProblems, kind, &ProblemWords::kind);
  return found == std::end(kProblems) ? Words{"other problem", "other problems"} : found->words;
}

Words wordsOf(const ScanNewsItem& item) {
  switch (item.kind) {
    case ScanNewsKind::NoPackage:
      break;
    case ScanNewsKind::ProjectFileUnread:
      return {"project file could not be read", "project files could not be read"};
    case ScanNewsKind::DirectoryUnread:
      return {"directory could not be listed", "directories could not be listed"};
    case ScanNewsKind::LinksCutOff:
      return {"directory left out, as too many are reached through links",
              "directories left out, as too many are reached through links"};
    case ScanNewsKind::OldLanguageName:
      return {"language directory with an old name", "language directories with old names"};
    case ScanNewsKind::SourceUnread:
      return {"source could not be read", "sources could not be read"};
    case ScanNewsKind::StringsFileMissing:
      return {"language without a Localizable.strings", "languages without a Localizable.strings"};
    case ScanNewsKind::StringsFileUnread:
      return {"strings file could not be read", "strings files could not be read"};
    case ScanNewsKind::CallRejected:
      return {"call in the sources was rejected", "calls in the sources were rejected"};
    case ScanNewsKind::EntryRejected:
      return {"line of the strings files was rejected", "lines of the strings files were rejected"};
    case ScanNewsKind::EntryWithoutMatch:
      return {"entry without a match in the sources", "entries without a match in the sources"};
    case ScanNewsKind::Problem:
      return wordsOfProblem(item.problem);
  }
  return {};
}

std::string_view firstLine(std::string_view text) {
  return text.substr(0, text.find_first_of("\r\n"));
}

/// "de.lproj/Localizable.strings:4:1: the text", as far as there is something to say.
std::string exampleText(const ScanExample& example, const FileUrl& directory) {
  if (example.file.empty()) return example.text;
  const std::string_view path = shownPath(directory, example.file);
  std::string text(path.empty() ? "." : path);
  for (const std::uint32_t number : {example.line, example.column}) {
    if (number != 0) text += ":" + std::to_string(number);
  }
  return example.text.empty() ? text : text.append(": ").append(firstLine(example.text));
}

std::string itemText(const ScanNewsItem& item, const FileUrl& directory) {
  const Words words = wordsOf(item);
  std::string text = groupedNumber(item.count).append(" ").append(item.count == 1 ? words.one : words.many);
  text += item.count > item.examples.size() ? "; --log lists them\n" : "\n";
  for (const ScanExample& example : item.examples) {
    text += "    " + printableLine(exampleText(example, directory)) + "\n";
  }
  return text;
}

}  // namespace

std::string scanNewsText(const ScanNews& news, const FileUrl& directory) {
  std::string text;
  for (const ScanNewsItem& item : news.items()) {
    if (item.kind != ScanNewsKind::NoPackage) text += itemText(item, directory);
  }
  return text;
}

}  // namespace glossmill
