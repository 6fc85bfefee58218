#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"
#include "xcode/NameSearch.h"

namespace glossmill {

/// Where a call takes one of its texts from.
struct TextSource {
  enum class Kind {
    None,
    Argument,
    Fixed,  ///< the same text in every call
  };

  Kind kind = Kind::None;
  std::size_t argument = 0;  ///< from 0
  std::shared_ptr<const std::string> text;

  bool operator==(const TextSource& other) const;
};

/// A text that a call looks up: where key, table, default value and comment come from. Without a table it is
/// Localizable.
struct Lookup {
  std::size_t key = 0;  ///< the argument, from 0
  TextSource table;
  TextSource defaultValue;
  TextSource comment;

  bool operator==(const Lookup&) const = default;
};

enum class CallForm {
  Function,     ///< name(…)
  Message,      ///< [… name:… value:… table:…]
  Method,       ///< Swift: .name(…)
  Constructor,  ///< Swift: String(name: …)
};

enum class LabelRule {
  Positions,  ///< C: arguments have no labels
  Apple,      ///< an argument is known by its label alone
  Own,        ///< by its label where a parameter is called so, else by its position
};

/// A routine whose calls look up texts.
struct Routine {
  std::string name;
  CallForm form = CallForm::Function;
  LabelRule labelRule = LabelRule::Positions;
  std::vector<std::string> labels;  ///< of the parameters, in Swift
  std::vector<Lookup> lookups;
  bool isMacro = false;  ///< of the project, so that a source may define it anew
};

/// Reads what somebody wrote of a routine of theirs: its name and its parameters, each of them key, table, value,
/// comment, bundle, or _ for any other, such as "MyString(key, comment)".
Result<Routine> parseRoutine(std::string_view description);

/// The routines whose calls are looked for in sources of one language. Of two with the same name the first counts.
class RoutineTable {
 public:
  explicit RoutineTable(std::vector<Routine> routines);

  const std::vector<Routine>& routines() const { return m_routines; }
  /// Names of routines; places in the set are those in routines().
  const NameSearch& search() const { return m_search; }
  /// Nothing when there is none of that name.
  const Routine* find(std::string_view name) const;

 private:
  std::vector<Routine> m_routines;
  NameSearch m_search;
};

}  // namespace glossmill
