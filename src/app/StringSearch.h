#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "app/FoldedTexts.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// Narrows the string table to the records whose key, comment or translation in the selected language holds a text, in
/// upper or lower case. Only the arrangement changes, the lists stay as they are.
class StringSearch {
 public:
  /// `project` outlives the search.
  explicit StringSearch(ProjectWindowController& project);

  /// All strings for the empty text. The selected string stays selected if it is still there, else the first one is.
  void search(std::string_view text);
  /// Other translations are to be searched: those of another language, or what a job has made of them. The selected
  /// string stays in the table, whatever its translation is now.
  void translationsChanged();
  void stringsChanged();
  void translationEdited();

 private:
  bool matches(const LocalizeString& record);
  bool holds(const LocalizeString& record);
  std::string translation(const LocalizeString& record) const;
  void foldTranslations();
  void arrange();

  ProjectWindowController& m_project;
  std::string m_wanted;  ///< folded
  std::shared_ptr<LocalizeString> m_kept;
  FoldedTexts m_sources;
  FoldedTexts m_translations;
};

}  // namespace glossmill
