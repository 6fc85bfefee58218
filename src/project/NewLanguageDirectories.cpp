#include "project/NewLanguageDirectories.h"

#include <algorithm>

namespace glossmill {

namespace {

template <typename List, typename Value>
bool holds(const List& list, const Value& value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

}  // namespace

bool isTranslated(const StringsTable& table) {
  return table.hasCalls || table.files.size() >= 2;
}

std::vector<FileUrl> newLanguageDirectories(const StringsTables& tables, std::string_view code,
                                            const std::vector<std::string>& tableIds) {
  std::vector<FileUrl> directories;
  for (const std::shared_ptr<StringsTable>& table : tables) {
    const bool isWanted = tableIds.empty() ? isTranslated(*table) : holds(tableIds, table->id);
    if (!isWanted || table->directory.empty()) continue;
    FileUrl directory = table->directory.appending(std::string(code) + ".lproj");
    if (!holds(directories, directory)) directories.push_back(std::move(directory));
  }
  return directories;
}

std::string_view languageWithoutRegion(std::string_view code) {
  return code.substr(0, code.find_first_of("-_"));
}

}  // namespace glossmill
