#pragma once

#include <string>

#include "model/SaveAllowance.h"

namespace glossmill {

/// By which rules a project is read and saved.
enum class RuleSet { Classic };

/// What a user chose for a project before it is opened.
struct ProjectOptions {
  RuleSet rules = RuleSet::Classic;
  SaveAllowance allowance;      ///< what a save may do without asking
  bool asksToSave = true;       ///< what is not allowed is asked; otherwise the save is refused
  bool pretendsToSave = false;  ///< a save only tells what it would do
  std::string command;          ///< by which words the project was opened, for the record of its saves
  std::string version;          ///< of the program, for the same
};

}  // namespace glossmill
