#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ExchangeUnit.h"
#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

/// How a file is to be written.
struct ExchangeWish {
  bool hasMark = false;  ///< begins with a byte-order mark, where the format is one for spreadsheets
  std::string programVersion;
};

/// One file that was made.
struct ExchangeFile {
  std::string path;  ///< below the target, which is a directory then; empty: the target itself
  std::string text;
};

/// A string that a format cannot carry, or not as it is.
struct LeftOutUnit {
  std::string table;
  std::string key;
  std::string sentence;
};

struct WrittenExchange {
  std::vector<ExchangeFile> files;
  std::vector<LeftOutUnit> leftOut;
};

/// A form in which languages go to a translator and come back. Functions without state, for any thread.
struct ExchangeFormat {
  std::string_view name;                        ///< on the command line
  std::string_view title;                       ///< in panels: a name, the same in every language
  std::span<const std::string_view> fileTypes;  ///< extensions, as they are offered; the first is the usual one
  bool carriesSeveralLanguages = false;
  bool isDirectory = false;  ///< it is written as a directory
  WrittenExchange (*write)(const ExchangeDocument& document, const ExchangeWish& wish) = nullptr;
  /// Takes a whole text. Parts that are wrong by themselves are among the rejected lines; a text that is not well
  /// formed is an error that names the line.
  Result<ExchangeDocument> (*read)(const std::string& text) = nullptr;
};

/// The formats of the core; the first is the program's own text, which is taken without a choice.
std::span<const ExchangeFormat> exchangeFormats();

/// The own text of projects with tables.
const ExchangeFormat& tableFormat();

/// The format whose files end like this one; null where none does.
const ExchangeFormat* formatOfFile(std::span<const ExchangeFormat> formats, const FileUrl& file);
const ExchangeFormat* formatNamed(std::span<const ExchangeFormat> formats, std::string_view name);

}  // namespace glossmill
