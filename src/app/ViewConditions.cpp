#include "app/ViewConditions.h"

#include <utility>

namespace glossmill {

ViewFilter::Condition isOfTable(std::shared_ptr<const StringsTable> table) {
  return [table = std::move(table)](const LocalizeString& record) {
    return record.tableRow() && record.tableRow()->table == table;
  };
}

ViewFilter::Condition isUntranslated(const ProjectWindowController& project) {
  return [&project](const LocalizeString& record) {
    const auto language = project.selectedLanguage();
    return language && record.isMissing(language->code());
  };
}

ViewFilter::Condition isUnused() {
  return [](const LocalizeString& record) { return record.tableRow() && record.tableRow()->isUnused; };
}

}  // namespace glossmill
