#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "model/CatalogRow.h"
#include "model/KeyIndex.h"
#include "model/Problem.h"
#include "model/ProjectRules.h"
#include "model/TextArena.h"
#include "xcode/StringsDocument.h"
#include "xcode/TableList.h"

namespace glossmill {

/// What a string catalog says of one of its rows.
struct CatalogEntry {
  std::shared_ptr<CatalogRow> row;
  StoredText sourceText;      ///< of the row in the source language
  bool sourceVaries = false;  ///< the key has variations in the source language, and no text for all of them
};

/// What the files of one table hold.
struct TableEntries {
  KeyIndex keys;  ///< in the order in which the files hold them, the development one first
  std::vector<std::vector<StoredText>> columns;  ///< by file and key; as long as the last key of the file needs
  std::vector<StoredText> comments;              ///< by key: what stands in front of it in the first file that says so
  std::vector<CatalogEntry> catalog;  ///< by key, for a string catalog: variations follow the text of their key

  /// No text where the file lacks the key.
  StoredText find(std::size_t file, KeyIndex::Number key) const {
    return key < columns[file].size() ? columns[file][key] : StoredText();
  }
};

/// A strings file as it was read; without a document when it could not be.
struct ReadStringsFile {
  std::optional<Error> unread;
  bool isBinary = false;
  std::optional<StringsDocument> document;
  std::size_t bytesRead = 0;
};

/// Any thread.
ReadStringsFile readStringsFile(const StringsTable::File& file, FileReading& files);

/// The files of a table by their numbers. That of the development language comes first, so that rows have its order.
std::vector<std::size_t> readingOrder(const StringsTable& table);

/// Puts the files of a table together; `next` gives them in their reading order. Values go to `arena`; a file with a
/// mistake counts up to it, and is marked in the table.
TableEntries takeTable(TableList::Table& table, TextArena& arena, const ScanInput& input,
                       const std::function<ReadStringsFile()>& next, const std::function<void(Problem)>& report);

/// The last comment of a gap between two entries that belongs to what follows: not one that begins on the line of the
/// entry before. Without its marks and the white space inside; "" for none.
std::string_view commentInGap(std::string_view gap, bool followsEntry);

}  // namespace glossmill
