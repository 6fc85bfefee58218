#include "app/ViewConditions.h"

#include <utility>

namespace glossmill {

ViewFilter::Condition isOfTable(std::shared_ptr<const StringsTable> table) {
  return [table = std::move(table)](const LocalizeString& record) {
    return record.tableRow() && record.tableRow()->table == table;
  };
}

}  // namespace glossmill
