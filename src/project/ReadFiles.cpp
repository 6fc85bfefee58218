#include "project/ReadFiles.h"

#include <variant>

#include "model/Language.h"
#include "model/Overloaded.h"

namespace glossmill {

void ReadFiles::add(const ScanEvent& event, SaveDisk& disk) {
  std::visit(Overloaded{
                 [&](const PackageFound& it) { begin(it.package.appending("project.pbxproj"), disk); },
                 [&](const StringsFileExpected& it) { expect(it.file, disk); },
                 [&](const StringsFileBegins& it) { begin(it.file, disk); },
                 [&](const StringsFileMissing& it) { beginWithout(it.language, disk); },
                 [this](const EntryRejected&) { ++m_leftOut; },
                 [this](const EntryWithoutMatch&) { ++m_leftOut; },
                 [this](const StringsFileRead& it) { m_files[it.file.path()].entries = it.entries + m_leftOut; },
                 [](const auto&) {},
             },
             event);
}

void ReadFiles::expect(const FileUrl& file, SaveDisk& disk) {
  const Result<std::optional<FileStamp>> stamp = disk.stampOf(file);
  m_expected[file.path()] = stamp ? stamp.value() : std::nullopt;
}

/// Looks at the file before it is read: whoever writes it meanwhile gives it another stamp.
void ReadFiles::begin(const FileUrl& file, SaveDisk& disk) {
  m_leftOut = 0;
  auto expected = m_expected.extract(file.path());
  if (!expected.empty()) return set(file, {expected.mapped(), std::nullopt});
  const Result<std::optional<FileStamp>> stamp = disk.stampOf(file);
  set(file, {stamp ? stamp.value() : std::nullopt, std::nullopt});
}

/// Whatever has the name that the file is going to get.
void ReadFiles::beginWithout(const Language& language, SaveDisk& disk) {
  if (language.urlDepth() == Language::kStringsFile) return;
  begin(language.localizedStringUrl().appending("Localizable.strings"), disk);
}

}  // namespace glossmill
