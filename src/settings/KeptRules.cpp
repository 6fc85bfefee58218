#include "settings/KeptRules.h"

#include "app/RememberedRules.h"
#include "platform/ReadBytes.h"
#include "project/ProtectedSave.h"
#include "settings/ProjectSettings.h"
#include "settings/ReadingChoice.h"

namespace glossmill {

namespace {

Error cannotWrite(const std::string& why) {
  return Error{"cannot write " + std::string(kProjectSettingsFile) + ": " + why};
}

std::string reasonOf(const SaveResult& result) {
  if (result.refusal) return result.refusal->places.empty() ? "" : result.refusal->places.front().sentence;
  return result.files.front().error.sentence;
}

Outcome writeFile(const Host& host, const FileUrl& directory, const ProjectOptions& options, const FileText& text) {
  const std::vector<UnreadPlace> allOfItWasRead;
  ProtectedSave save(host, options, directory, allOfItWasRead);
  const SaveResult result = save.save({text});
  if (result.refusal || !result.files.front().isWritten()) return cannotWrite(reasonOf(result));
  return Done{};
}

Outcome changeFile(const Host& host, const FileUrl& file, const ProjectOptions& options, RuleSet rules) {
  const Result<std::optional<FileStamp>> stamp = host.saves.stampOf(file);
  const Result<std::string> before = readBytes(host.files, file);
  if (!stamp || !before) return cannotWrite(stamp ? before.error().sentence : stamp.error().sentence);
  const Result<std::string> after = settingsTextWithRules(before.value(), rules);
  if (!after) return after.error();
  FileText text;
  text.file = file;
  text.bytes = [&after] { return onePiece(after.value()); };
  text.expected = stamp.value();
  return writeFile(host, file.parent(), options, text);
}

}  // namespace

Outcome keepRules(const Host& host, const FileUrl& directory, const ProjectOptions& options, RuleSet rules) {
  const FileUrl project = projectDirectoryOf(host.files, directory);
  const FileUrl file = project.appending(kProjectSettingsFile);
  if (host.files.identityOf(file)) return changeFile(host, file, options, rules);
  rememberRules(host.defaults, project, rules);
  return Done{};
}

}  // namespace glossmill
