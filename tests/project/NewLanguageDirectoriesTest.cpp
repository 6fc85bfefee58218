#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "project/NewLanguageDirectories.h"

namespace glossmill {
namespace {

std::shared_ptr<StringsTable> tableIn(const std::string& directory, const std::string& name, std::size_t files) {
  auto table = std::make_shared<StringsTable>();
  table->id = directory + "/" + name;
  table->name = name;
  table->directory = FileUrl("/p/" + directory);
  for (std::size_t at = 0; at < files; ++at) {
    table->addFile({FileUrl("/p/x"), LanguageCode("l" + std::to_string(at)), true, {}, false});
  }
  return table;
}

std::vector<std::string> directoriesFor(const StringsTables& tables, const std::vector<std::string>& ids = {}) {
  std::vector<std::string> paths;
  for (const FileUrl& directory : newLanguageDirectories(tables, "pt-BR", ids)) paths.push_back(directory.path());
  return paths;
}

TEST(NewLanguageDirectories, AreThoseOfTranslatedTablesOnce) {
  const StringsTables tables{tableIn("a", "Boats", 2), tableIn("a", "Ships", 3), tableIn("b", "Boats", 1),
                             tableIn("c", "Boats", 1)};
  tables.back()->hasCalls = true;
  EXPECT_EQ(directoriesFor(tables), (std::vector<std::string>{"/p/a/pt-BR.lproj", "/p/c/pt-BR.lproj"}));
}

TEST(NewLanguageDirectories, CanBeChosen) {
  const StringsTables tables{tableIn("a", "Boats", 2), tableIn("b", "Boats", 1)};
  EXPECT_EQ(directoriesFor(tables, {"b/Boats"}), std::vector<std::string>{"/p/b/pt-BR.lproj"});
}

TEST(NewLanguageDirectories, ATableWithoutADirectoryHasNone) {
  StringsTables tables{tableIn("a", "Boats", 2)};
  tables.front()->directory = FileUrl();
  EXPECT_EQ(directoriesFor(tables), std::vector<std::string>());
}

TEST(NewLanguageDirectories, TheRegionOfACodeIsTakenOff) {
  EXPECT_EQ(languageWithoutRegion("pt-BR"), "pt");
  EXPECT_EQ(languageWithoutRegion("zh_Hans_CN"), "zh");
  EXPECT_EQ(languageWithoutRegion("de"), "de");
}

}  // namespace
}  // namespace glossmill
