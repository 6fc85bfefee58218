#include "exchange/ImportReport.h"

namespace glossmill {

void ImportReport::count(const Edit& edit) {
  if (edit.changesNothing()) {
    ++unchanged;
  } else if (edit.before) {
    ++changed;
  } else {
    ++added;
  }
}

}  // namespace glossmill
