#include "cli/WritingReport.h"

#include "cli/DisplayText.h"
#include "cli/WritingOptions.h"
#include "host/Paths.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

std::string_view changeText(FileChange change, bool pretended) {
  switch (change) {
    case FileChange::Created:
      return pretended ? "would be created  " : "created    ";
    case FileChange::Changed:
      return pretended ? "would change      " : "changed    ";
    case FileChange::Unchanged:
      break;
  }
  return pretended ? "is unchanged      " : "unchanged  ";
}

/// Nothing for a file that could not be written.
std::optional<FileChange> changeOf(const FileOutcome& outcome) {
  switch (outcome.kind) {
    case FileOutcome::Kind::Unchanged:
      return FileChange::Unchanged;
    case FileOutcome::Kind::Created:
      return FileChange::Created;
    case FileOutcome::Kind::Changed:
    case FileOutcome::Kind::Removed:
      return FileChange::Changed;
    case FileOutcome::Kind::Failed:
    case FileOutcome::Kind::DirectoryFailed:
      break;
  }
  return std::nullopt;
}

std::string lineFor(const Writing& writing, FileChange change, const FileUrl& file, bool isDirectory) {
  std::string line(changeText(change, writing.pretended));
  line += printableLine(shownPath(writing.project, file));
  return line + (isDirectory ? "/\n" : "\n");
}

std::string linesFor(const Writing& writing, const SavedLanguage& language) {
  std::string lines;
  for (const FileUrl& directory : language.outcome.directories) {
    lines += lineFor(writing, FileChange::Created, directory, true);
  }
  const std::optional<FileChange> change = changeOf(language.outcome);
  return change ? lines + lineFor(writing, *change, language.file, false) : lines;
}

std::string countOr(const std::optional<std::uint64_t>& count) {
  return count ? std::to_string(*count) : "unknown";
}

void mentionLosses(const Writing& writing, const SavedLanguage& language, Console& console) {
  if (language.outcome.hasOtherNames) {
    console.message(inQuotes(shownPath(writing.project, language.file)) +
                    " has other names (hard links), which keep the former text");
  }
  if (language.notWritten() == 0U || !language.outcome.isWritten()) return;
  const std::optional<std::string>& id = writing.save.id;
  console.note(language.code + ": " + countOr(language.entriesBefore) + " entries before, " +
               std::to_string(language.entriesAfter) + " after, " + countOr(language.notWritten()) +
               " not written again" + (id ? "; glossmill-cli restore --from " + *id + " brings them back" : ""));
}

std::string_view changeName(FileChange change) {
  switch (change) {
    case FileChange::Created:
      return "created";
    case FileChange::Changed:
      return "changed";
    case FileChange::Unchanged:
      break;
  }
  return "unchanged";
}

std::string_view outcomeName(const FileOutcome& outcome) {
  if (outcome.kind == FileOutcome::Kind::Removed) return "removed";
  const std::optional<FileChange> change = changeOf(outcome);
  return change ? changeName(*change) : "failed";
}

Json pathJson(const Writing& writing, const FileUrl& file) {
  return shownPath(writing.project, file);
}

Json fileJson(const Writing& writing, const FileUrl& file, std::string_view change, bool isDirectory) {
  return {{"file", pathJson(writing, file)}, {"change", change}, {"isDirectory", isDirectory}};
}

Json filesJson(const Writing& writing) {
  Json files = Json::array();
  for (const WrittenFile& file : writing.files) {
    files.push_back(fileJson(writing, file.url, changeName(file.change), file.isDirectory));
  }
  for (const SavedLanguage& language : writing.save.languages) {
    for (const FileUrl& directory : language.outcome.directories) {
      files.push_back(fileJson(writing, directory, changeName(FileChange::Created), true));
    }
    files.push_back(fileJson(writing, language.file, outcomeName(language.outcome), false));
  }
  return files;
}

Json countJson(const std::optional<std::uint64_t>& count) {
  return count ? Json(*count) : Json();
}

Json languageJson(const Writing& writing, const SavedLanguage& language) {
  const bool isWritten = language.outcome.isWritten();
  return {{"iso639", language.code},
          {"file", pathJson(writing, language.file)},
          {"error", isWritten ? Json() : Json(language.outcome.error.sentence)},
          {"entriesBefore", countJson(language.entriesBefore)},
          {"entriesAfter", language.entriesAfter},
          {"notWrittenAgain", countJson(language.notWritten())}};
}

std::string reasonOf(SaveRefusal::Kind kind) {
  if (kind == SaveRefusal::Kind::Busy) return "busy";
  if (kind == SaveRefusal::Kind::Unfinished) return "unfinished";
  return kind == SaveRefusal::Kind::Dropped ? "max-dropped" : allowanceFor(kind);
}

Json refusalJson(const Writing& writing) {
  const std::optional<SaveRefusal>& refusal = writing.save.refusal;
  if (!refusal) return {};
  Json places = Json::array();
  for (const SaveRefusal::Place& place : refusal->places) {
    places.push_back({{"file", pathJson(writing, place.file)}, {"message", place.sentence}});
  }
  return {{"reason", reasonOf(refusal->kind)}, {"places", places}};
}

}  // namespace

void printRefusalAndLosses(const Writing& writing, Console& console) {
  if (writing.save.refusal) explainRefusal(*writing.save.refusal, writing.project, console);
  for (const SavedLanguage& language : writing.save.languages) mentionLosses(writing, language, console);
}

void printWritingJson(const Writing& writing, const Json& counts, Console& console) {
  JsonWriter writer(console);
  writer.member("dryRun", writing.pretended);
  for (const auto& [name, count] : counts.items()) writer.member(name, count);
  const Json files = filesJson(writing);
  writer.list("files", files.size(), [&files](std::size_t at) { return files[at]; });
  const std::vector<SavedLanguage>& languages = writing.save.languages;
  writer.list("languages", languages.size(), [&](std::size_t at) { return languageJson(writing, languages[at]); });
  writer.member("save", writing.save.id ? Json(*writing.save.id) : Json());
  writer.member("refusal", refusalJson(writing));
  writer.end();
  printRefusalAndLosses(writing, console);
}

void printWriting(const Writing& writing, Console& console) {
  std::string text;
  for (const WrittenFile& file : writing.files) text += lineFor(writing, file.change, file.url, file.isDirectory);
  for (const SavedLanguage& language : writing.save.languages) text += linesFor(writing, language);
  console.data(text);
  printRefusalAndLosses(writing, console);
}

}  // namespace glossmill
