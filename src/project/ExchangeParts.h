#pragma once

#include <vector>

#include "exchange/ExchangeFormat.h"
#include "exchange/ImportPlan.h"
#include "exchange/ImportReport.h"
#include "project/ExchangeRequests.h"

namespace glossmill {

/// What the exchange with translators keeps: the formats it knows, and what came of the last time.
struct ExchangeParts {
  std::vector<ExchangeFormat> formats{exchangeFormats().begin(), exchangeFormats().end()};
  ExportReport exportReport;
  ImportReport importReport;
  ImportPlan importPlan;
  bool tellsOfImport = false;  ///< what became of the import that runs
};

}  // namespace glossmill
