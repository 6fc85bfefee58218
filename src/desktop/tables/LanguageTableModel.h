#pragma once

#include "app/DisplayTransformers.h"
#include "desktop/tables/RecordTableModel.h"
#include "model/ArrayController.h"
#include "platform/Bundle.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// Languages of the project: code, name, status, and how much of each is done.
class LanguageTableModel : public RecordTableModel {
 public:
  enum Column { Code, Name, Status, Done };
  /// The role of a whole number from 0 to 100, for the bar in the last column.
  static constexpr int kPercentRole = Qt::UserRole;

  /// The languages that `languages` arranges, with what `project` says about them.
  LanguageTableModel(ArrayController<Language>& languages, ProjectWindowController& project, const Bundle& bundle);

 protected:
  QVariant cell(std::size_t row, int column, int role) const override;

 private:
  QString text(const Language& language, int column) const;
  int percent(const Language& language) const;

  ArrayController<Language>& m_languages;
  ProjectWindowController& m_project;
};

}  // namespace glossmill
