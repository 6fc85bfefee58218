#include "exchange/ExchangeFiles.h"

#include <optional>

#include "platform/ReadText.h"

namespace glossmill {

namespace {

constexpr std::string_view kTexts = "Localized Contents";

/// There is one, named after the language.
Result<FileUrl> textsOfBundle(FileReading& files, const FileUrl& bundle) {
  const FileUrl directory = bundle.appending(kTexts);
  const auto entries = files.list(directory);
  if (!entries) return Error{"It is a directory without “Localized Contents”."};
  std::optional<FileUrl> found;
  for (const DirectoryEntry& entry : entries.value()) {
    if (entry.kind != EntryKind::File || extensionOfName(entry.name) != "xliff") continue;
    if (found) return Error{"“Localized Contents” holds more than one XLIFF file."};
    found = directory.appending(entry.name);
  }
  return found ? Result<FileUrl>(*found) : Error{"“Localized Contents” holds no XLIFF file."};
}

}  // namespace

Result<std::string> readExchangeText(FileReading& files, const FileUrl& file) {
  if (file.pathExtension() != "xcloc") return readText(files, file);
  const Result<FileUrl> inside = textsOfBundle(files, file);
  return inside ? readText(files, inside.value()) : Result<std::string>(inside.error());
}

}  // namespace glossmill
