#pragma once

#include "app/DisplayTransformers.h"
#include "desktop/tables/RecordTableModel.h"
#include "platform/Bundle.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The project's strings: key, translation in the selected language, comment, files, uses, status.
class StringTableModel : public RecordTableModel {
 public:
  enum Column { Key, Translation, Comment, Files, Uses, Status };

  StringTableModel(ProjectWindowController& project, const Bundle& bundle);

 protected:
  QVariant cell(std::size_t row, int column, int role) const override;

 private:
  QString text(const LocalizeString& record, int column) const;
  QVariant alignment(int column) const;

  ProjectWindowController& m_project;
};

}  // namespace glossmill
