#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/SaveAllowance.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// By which rules a project is read and saved.
enum class RuleSet { Classic, Xcode };

/// How xcode's rules are to read a project. Empty: as they find out themselves.
struct XcodeOptions {
  std::vector<FileUrl> packages;
  std::vector<std::string> exclude;   ///< globs of what is not read, below the project's directory
  std::vector<std::string> routines;  ///< of the project's own, such as "MyString(key, comment)"
  std::string sourceLanguage;         ///< the code of the development language
};

/// What a user chose for a project before it is opened.
struct ProjectOptions {
  RuleSet rules = RuleSet::Classic;
  XcodeOptions xcode;       ///< only those rules look at it
  SaveAllowance allowance;  ///< what a save may do without asking
  bool asksToSave = true;   ///< what is not allowed is asked; otherwise the save is refused
  /// How long a save waits for another program that writes the project; nothing: whoever opened the project holds the
  /// lock, and has looked for a save that was cut short.
  std::optional<std::chrono::milliseconds> lockPatience = std::chrono::seconds(2);
  bool pretendsToSave = false;                   ///< a save only tells what it would do
  std::optional<std::uint64_t> maxDropped = {};  ///< a save that would drop more entries is refused
  bool keepsJournal = false;                     ///< edits outlive the program until a save has written them
  bool leavesDirectoriesToSave = false;          ///< the directory of a new language is made when it is saved
  std::string command;                           ///< by which words the project was opened, for the record of its saves
  std::string version;                           ///< of the program, for the same
};

}  // namespace glossmill
