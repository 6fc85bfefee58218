#pragma once

#include <optional>
#include <string_view>

#include "project/ProjectWindowController.h"

namespace glossmill {

/// What a translator looks at to translate a string: its source text, or its translation into a language that was
/// chosen as the reference. Main thread.
class ReferenceText {
 public:
  /// `project` outlives this.
  explicit ReferenceText(const ProjectWindowController& project) : m_project(project) {}

  /// Nothing: the source text.
  void choose(std::optional<LanguageCode> language) { m_language = language; }
  const std::optional<LanguageCode>& chosen() const { return m_language; }
  /// Empty where there is none. Valid until a text of the record changes.
  std::string_view of(const LocalizeString& record) const;
  /// Whether any string of the open project has another one than its key, so that it is worth the room.
  bool isWorthShowing() const;

 private:
  LanguageCode sourceLanguage() const;

  const ProjectWindowController& m_project;
  std::optional<LanguageCode> m_language;
};

}  // namespace glossmill
