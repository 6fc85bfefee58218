#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "app/FoldedTexts.h"
#include "app/ViewFilter.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// Narrows the view to the strings whose key, comment or translation in the selected language holds a text, in upper or
/// lower case.
class StringSearch {
 public:
  /// Both outlive the search.
  StringSearch(ProjectWindowController& project, ViewFilter& view);

  /// All strings for the empty text.
  void search(std::string_view text);
  /// Other translations are to be searched: those of another language, or what a job has made of them. To be called
  /// before the view is refreshed.
  void translationsChanged();
  void stringsChanged();
  void translationEdited();

 private:
  bool holds(const LocalizeString& record);
  std::string translation(const LocalizeString& record) const;
  void foldTranslations();

  ProjectWindowController& m_project;
  ViewFilter& m_view;
  std::string m_wanted;  ///< folded
  FoldedTexts m_sources;
  FoldedTexts m_translations;
};

}  // namespace glossmill
