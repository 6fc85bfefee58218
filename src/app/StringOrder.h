#pragma once

#include "app/ReferenceText.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// What the strings of the table can be sorted by.
enum class SortKey { Key, Translation, Comment, Files, Uses, Status, Table, Source };

/// The order of the strings in the window's table. A view only: the lists and saves keep the order of the sources.
/// Texts are compared whatever their case; of what is equal the order of the sources stays. Main thread.
class StringOrder {
 public:
  /// Both outlive this.
  StringOrder(ProjectWindowController& project, const ReferenceText& reference)
      : m_project(project), m_reference(reference) {}

  void sortBy(SortKey key, bool descending);
  /// The order of the sources.
  void clear();

 private:
  using Sorter = ProjectWindowController::StringController::Sorter;

  Sorter byText(std::function<std::string(const LocalizeString&)> text, bool descending) const;
  Sorter byNumber(std::function<std::int64_t(const LocalizeString&)> number, bool descending) const;
  Sorter sorter(SortKey key, bool descending) const;
  std::string translationOf(const LocalizeString& record) const;
  std::int64_t missingOf(const LocalizeString& record) const;

  ProjectWindowController& m_project;
  const ReferenceText& m_reference;
};

}  // namespace glossmill
