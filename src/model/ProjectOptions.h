#pragma once

namespace glossmill {

/// By which rules a project is read and saved.
enum class RuleSet { Classic };

/// What a user chose for a project before it is opened.
struct ProjectOptions {
  RuleSet rules = RuleSet::Classic;
};

}  // namespace glossmill
