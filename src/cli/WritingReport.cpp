#include "cli/WritingReport.h"

#include "cli/DisplayText.h"
#include "cli/Paths.h"
#include "cli/WritingOptions.h"
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

}  // namespace

void printWriting(const Writing& writing, Console& console) {
  std::string text;
  for (const WrittenFile& file : writing.files) text += lineFor(writing, file.change, file.url, file.isDirectory);
  for (const SavedLanguage& language : writing.save.languages) text += linesFor(writing, language);
  console.data(text);
  if (writing.save.refusal) explainRefusal(*writing.save.refusal, writing.project, console);
  for (const SavedLanguage& language : writing.save.languages) mentionLosses(writing, language, console);
}

}  // namespace glossmill
