#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// The `.lproj` directories that stand beside one another, and which language each of them is of.
class LanguageDirectories {
 public:
  /// `names` without the `.lproj`; `development` is the development language as the project spells it.
  LanguageDirectories(std::vector<std::string> names, std::string_view development);

  const std::vector<std::string>& names() const { return m_names; }
  /// The language of a directory: its own name but for Base, and for an old name, which stand for a code that no
  /// directory beside them has.
  std::string_view languageOf(std::string_view name) const;
  /// Whether a directory stands for a language of its own also where no strings file lies in it.
  bool isOwnLanguage(std::string_view name) const;
  /// The language that is translated from, where all of them may have texts.
  std::string_view development() const { return m_development; }

 private:
  bool holds(std::string_view name) const;

  std::vector<std::string> m_names;
  std::string m_development;
};

}  // namespace glossmill
