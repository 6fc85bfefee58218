#pragma once

#include <functional>
#include <string>

#include "project/ProjectWindowController.h"
#include "timing/Samples.h"

namespace glossmill::bench {

/// Export, import and base language through the controller, with a hop to the main thread for every record, each beside
/// the same calls of the modules without a hop. Main thread.
class JobTrials {
 public:
  /// `project` is open and, like `files`, outlives the trials; `scratch` is a directory of theirs. `finishJob` returns
  /// when the job that was just started is over.
  JobTrials(ProjectWindowController& project, Files& files, const FileUrl& scratch, std::function<void()> finishJob);

  /// `where` ("command line") becomes part of the names of what is found.
  void run(const std::string& where, int rounds);
  /// A job of this many times as many hops, so that there is time for many pictures of its progress bar.
  void runLongJob(std::size_t times);

 private:
  struct Trial {
    std::string name;
    std::function<void()> work;
    std::function<void()> job;
    std::size_t expectedEntries = 0;  ///< in the language of the trials, after the work and after the job
  };

  void measure(const Trial& trial, const std::string& where, int rounds);
  void checkEntries(const Trial& trial) const;
  void exportAll();
  std::size_t importAll();
  void fillAll();
  void removeEntries();
  std::size_t entries() const;

  ProjectWindowController& m_project;
  Files& m_files;
  FileUrl m_exported;
  std::function<void()> m_finishJob;
  std::shared_ptr<Language> m_full;   ///< one with all translations
  std::shared_ptr<Language> m_added;  ///< none of the project's; its entries come and go
};

}  // namespace glossmill::bench
