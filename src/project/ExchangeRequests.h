#pragma once

#include <memory>
#include <string>
#include <vector>

#include "exchange/ExchangeFormat.h"
#include "exchange/ImportItem.h"
#include "model/ExportScope.h"
#include "model/Language.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// What is to be exported, and how.
struct ExportRequest {
  LanguageArray languages;  ///< not empty; formats for one language take the first
  FileUrl file;
  ExportScope scope = ExportScope::AllStrings;
  std::string format = {};  ///< name; empty: by the file's extension
  bool hasMark = false;     ///< as in ExchangeWish
};

struct ExportReport {
  std::size_t strings = 0;  ///< that were handed to the format
  std::vector<LeftOutUnit> leftOut;
};

/// What is to be imported, and how.
struct ImportRequest {
  FileUrl file;
  std::shared_ptr<Language> language = nullptr;  ///< null: as the file says
  std::string format = {};                       ///< name; empty: by the file's extension
  ImportScope scope = ImportScope::All;
  bool takesUnsure = false;
};

}  // namespace glossmill
