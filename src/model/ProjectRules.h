#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Edit.h"
#include "model/EditedTexts.h"
#include "model/FileText.h"
#include "model/IsoTable.h"
#include "model/Language.h"
#include "model/ProjectOptions.h"
#include "model/ScanEvents.h"
#include "model/ScanResult.h"
#include "platform/CancelFlag.h"
#include "platform/Files.h"

namespace glossmill {

/// What reading a project works on; all of it outlives the reading.
struct ScanInput {
  FileReading& files;
  const IsoTable& isoTable;
  const CancelFlag& canceled;
  ScanListener& listener;
  const ProjectOptions& options;
};

/// What a scan leaves behind for the next one, also when it ended early.
struct ScanMemory {
  std::optional<FileUrl> projectPackage;       ///< that the last scan took
  std::optional<std::string> projectFileData;  ///< nothing until a project file was read
  std::int64_t actualDirectoryDepth = 0;       ///< directories entered so far; deliberately (rule 6) never lowered
  std::shared_ptr<Language> actualLanguage;    ///< the language made last
  FileUrl actualParseFileName;                 ///< the source that was begun last
};

/// What a save works on; the plan keeps alive what it needs of it, but for the disk.
struct SaveInput {
  FileReading& files;
  const StringArray& records;
  const LanguageArray& languages;  ///< to be saved
  const StringsTables& tables;
  const EditedTexts& edited;
};

enum class ScanEnd { Complete, Canceled };

/// One set of rules by which projects are read and saved. Without state: any project, any thread.
class ProjectRules {
 public:
  virtual ~ProjectRules() = default;
  /// Phase one: the project's package and project file, its languages and its sources. A cancel ends it early.
  virtual void readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                           ScanResult& result) const = 0;
  /// Phase two: the translations in the strings files. A cancel leaves those stored so far in place.
  virtual ScanEnd readStringsFiles(const ScanInput& input, ScanResult& result) const = 0;
  /// What a save would write, in its order. A file that cannot be written is among them, with an error for its bytes.
  virtual std::vector<FileText> planSave(const SaveInput& input) const = 0;
  /// Whether a save looks at what was edited and leaves all else alone.
  virtual bool savesOnlyEdits() const = 0;
  /// Whether an edit that was applied leaves the project with something to save.
  virtual bool marksChanged(EditKind kind, const Edit& edit) const = 0;
};

}  // namespace glossmill
