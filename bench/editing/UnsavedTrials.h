#pragma once

#include <string>

#include "editing/HeadlessProject.h"

namespace glossmill::bench {

/// What an edit costs the main thread when it can be undone and outlives the program: one at a time, and many at once.
/// Reads the project anew, with a journal, in whatever directory XDG_STATE_HOME names.
class UnsavedTrials {
 public:
  UnsavedTrials(HeadlessProject& project, const std::string& directory);

  void singleEdits(int rounds);
  /// A step of so many edits, its undo and its redo.
  void batches(std::size_t edits, int rounds);

 private:
  void openAnew(const std::string& directory);
  void fill(std::size_t edits, const std::string& text);

  ProjectWindowController& m_controller;
  HeadlessHost& m_host;
};

}  // namespace glossmill::bench
