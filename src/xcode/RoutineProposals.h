#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glossmill {

/// Guesses which functions and macros of a project look texts up: those that are mostly called with literals that the
/// strings files hold as keys. A guess, which a person is to look at: comments count like code.
class RoutineProposals {
 public:
  using IsKey = std::function<bool(std::string_view text)>;

  explicit RoutineProposals(IsKey isKey) : m_isKey(std::move(isKey)) {}

  void addSource(std::string_view text);

  /// Such as "MyString(key, comment)", those with most calls first; each is called with five keys at least.
  std::vector<std::string> best() const;

 private:
  struct Calls {
    std::size_t literal = 0;     ///< with a literal in front
    std::size_t withKey = 0;     ///< of these, with a key
    std::size_t withSecond = 0;  ///< of these, with another argument behind
  };

  IsKey m_isKey;
  std::unordered_map<std::string, Calls> m_names;
};

}  // namespace glossmill
