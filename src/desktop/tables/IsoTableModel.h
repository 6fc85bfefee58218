#pragma once

#include "desktop/tables/RecordTableModel.h"
#include "model/ArrayController.h"
#include "model/Language.h"
#include "platform/Bundle.h"

namespace glossmill {

/// Languages that can be added: name and code, in another colour when the project has the language already.
class IsoTableModel : public RecordTableModel {
 public:
  enum Column { Name, Code, Used };

  IsoTableModel(ArrayController<Language>& languages, const Bundle& bundle);

 protected:
  QVariant cell(std::size_t row, int column, int role) const override;

 private:
  QString text(const Language& language, int column) const;

  ArrayController<Language>& m_languages;
  const QString m_inProject;
};

}  // namespace glossmill
