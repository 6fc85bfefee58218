#pragma once

#include <filesystem>

#include "project/ProjectWindowController.h"

namespace glossmill::bench {

/// Saving every language, beside `cp` of the same bytes and a flush of the disk. The project's own files are left
/// alone: its languages get copies of them to be saved to.
class SavingTrials {
 public:
  /// `scratch` is a directory of the trials, on the file system that is to be measured.
  SavingTrials(ProjectWindowController& project, const std::filesystem::path& scratch);

  void run(int rounds);

 private:
  void copyFiles();
  double save();
  /// To a directory that does not exist yet.
  double copyAndFlush() const;
  /// Over the files that are there, whose room on the disk is freed, as it is by saving.
  double copyOverAndFlush() const;
  void checkFiles() const;

  ProjectWindowController& m_project;
  std::filesystem::path m_saved;
  std::filesystem::path m_copied;
};

}  // namespace glossmill::bench
