#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "model/EditDoor.h"
#include "model/LocalizeString.h"
#include "support/InMemoryFiles.h"
#include "xcode/StringsSave.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// Tables in /p/<directory>; English is translated from.
class StringsSaveTest : public testing::Test {
 protected:
  StringsSaveTest() {
    m_door.addObserver([this](const Edit& edit, const EditStep&) { m_edited.add(edit); });
    for (const std::string code : {"de", "en", "ja"}) {
      m_languages.push_back(std::make_shared<Language>());
      m_languages.back()->setIso639(code);
    }
  }

  StringsTable& addTable(const std::string& directory, const std::string& name) {
    StringsTable& table = *m_tables.emplace_back(std::make_shared<StringsTable>());
    table.id = directory + "/" + name;
    table.name = name;
    table.directory = FileUrl("/p/" + directory);
    table.development = LanguageCode("en");
    return table;
  }

  void addFile(StringsTable& table, const std::string& code, const std::string& bytes) {
    const FileUrl file = table.directory.appending(code + ".lproj").appending(table.name + ".strings");
    m_files.addFile(file.path(), bytes);
    table.addFile({file, LanguageCode(code), true, {}, false});
  }

  /// Nothing takes the translation away.
  void edit(std::size_t table, const std::string& key, const std::string& code, std::optional<std::string> value) {
    std::shared_ptr<LocalizeString>& record = m_records[{table, key}];
    if (!record) {
      record = std::make_shared<LocalizeString>();
      record->setName(key);
      record->setCommentArray({"A comment"});
      record->setTableRow(std::make_unique<TableRow>());
      record->tableRow()->table = m_tables[table];
      m_all.push_back(record);
    }
    if (!value) m_door.applyEdit(EditKind::Typing, editOf(record, LanguageCode(code), "former"));
    m_door.applyEdit(EditKind::Typing, editOf(record, LanguageCode(code), std::move(value)));
  }

  /// "path: bytes", or "path! sentence" for what cannot be written.
  Lines plan() {
    Lines lines;
    m_plan = planStringsSave({m_files, m_all, m_languages, m_tables, m_edited});
    for (const FileText& text : m_plan) {
      const BytePieces pieces = text.bytes();
      std::string bytes;
      Result<std::string_view> piece = pieces();
      for (; piece && !piece.value().empty(); piece = pieces()) bytes += piece.value();
      lines.push_back(text.file.path() + (piece ? ": " + bytes : "! " + piece.error().sentence));
    }
    return lines;
  }

  InMemoryFiles m_files;
  StringsTables m_tables;
  LanguageArray m_languages;
  StringArray m_all;
  EditDoor m_door;
  EditedTexts m_edited;
  std::map<std::pair<std::size_t, std::string>, std::shared_ptr<LocalizeString>> m_records;
  std::vector<FileText> m_plan;
};

TEST_F(StringsSaveTest, WithoutAnEditNothingIsReadOrWritten) {
  addFile(addTable("app", "Boats"), "de", "a = 1;\n");
  EXPECT_EQ(plan(), Lines());
  EXPECT_EQ(m_files.opened(), Lines());
}

TEST_F(StringsSaveTest, OneEditReadsAndWritesOneFileOfManyTables) {
  for (int number = 0; number < 100; ++number) {
    StringsTable& table = addTable("app" + std::to_string(number), "Boats");
    for (const std::string code : {"de", "en", "ja"}) addFile(table, code, "/* c */\n\"a\" = \"1\";\n");
  }
  edit(42, "a", "de", "x");
  EXPECT_EQ(plan(), Lines{"/p/app42/de.lproj/Boats.strings: /* c */\n\"a\" = \"x\";\n"});
  EXPECT_EQ(m_files.opened(), Lines{"/p/app42/de.lproj/Boats.strings"});
}

TEST_F(StringsSaveTest, FilesComeByTableAndLanguageWithAllTheirEdits) {
  StringsTable& second = addTable("b", "Boats");
  addFile(second, "de", "a = 1;\nb = 2;\n");
  StringsTable& first = addTable("a", "Boats");
  addFile(first, "de", "a = 1;\n");
  addFile(first, "ja", "a = 1;\n");
  edit(0, "b", "de", "x");
  edit(1, "a", "ja", "y");
  edit(1, "a", "de", "z");
  edit(0, "a", "de", std::nullopt);
  EXPECT_EQ(plan(), (Lines{"/p/a/de.lproj/Boats.strings: a = \"z\";\n", "/p/a/ja.lproj/Boats.strings: a = \"y\";\n",
                           "/p/b/de.lproj/Boats.strings: b = \"x\";\n"}));
  EXPECT_EQ(m_plan[2].entriesBefore, 2U);
  EXPECT_EQ(m_plan[2].entriesAfter, 1U);
  EXPECT_EQ(m_plan[2].table, "b/Boats");
  EXPECT_EQ(m_plan[2].language, "de");
}

TEST_F(StringsSaveTest, OnlyTheLanguagesThatAreSavedAreWritten) {
  StringsTable& table = addTable("a", "Boats");
  addFile(table, "de", "a = 1;\n");
  addFile(table, "ja", "a = 1;\n");
  edit(0, "a", "de", "x");
  edit(0, "a", "ja", "x");
  m_languages.erase(m_languages.begin());
  EXPECT_EQ(plan(), Lines{"/p/a/ja.lproj/Boats.strings: a = \"x\";\n"});
}

TEST_F(StringsSaveTest, ANewEntryFollowsTheDevelopmentLanguageAsItIsToBe) {
  StringsTable& table = addTable("a", "Boats");
  addFile(table, "en", "z = 1;\na = 2;\n");
  addFile(table, "de", "z = 1;\na = 2;\n");
  addFile(table, "ja", "z = 1;\na = 2;\n");
  edit(0, "a", "en", std::nullopt);
  edit(0, "m", "en", "x");
  edit(0, "m", "de", "y");
  EXPECT_EQ(plan(), (Lines{"/p/a/de.lproj/Boats.strings: m = \"y\";\nz = 1;\na = 2;\n",
                           "/p/a/en.lproj/Boats.strings: m = \"x\";\nz = 1;\n"}));
}

TEST_F(StringsSaveTest, AFileWithAMistakeIsNeverWritten) {
  StringsTable& table = addTable("a", "Boats");
  addFile(table, "de", "a = 1;\nb\n");
  edit(0, "a", "de", "x");
  EXPECT_EQ(plan(), Lines{"/p/a/de.lproj/Boats.strings! It has a mistake in line 2 and is not written before that is "
                          "mended: “=” is missing behind a key."});
}

TEST_F(StringsSaveTest, ACharacterThatTheFileCannotHoldIsAnErrorOfThatFileAlone) {
  constexpr std::uint32_t kMacRoman = 30;
  StringsTable& table = addTable("a", "Boats");
  addFile(table, "de", "\"\x8A\" = 1;\n");
  addFile(table, "ja", "a = 1;\n");
  table.files.front().encoding = kMacRoman;
  edit(0, "a", "de", "ж");
  edit(0, "a", "ja", "ж");
  EXPECT_EQ(plan(), (Lines{"/p/a/de.lproj/Boats.strings! The character “ж” cannot be written in the encoding of the "
                           "file, Mac Roman.",
                           "/p/a/ja.lproj/Boats.strings: a = \"ж\";\n"}));
}

TEST_F(StringsSaveTest, AFileThatIsGoneIsNotMadeOfItsEditsAlone) {
  addFile(addTable("a", "Boats"), "de", "a = 1;\n");
  m_files.remove("/p/a/de.lproj/Boats.strings");
  edit(0, "a", "de", "x");
  const Lines lines = plan();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_TRUE(lines.front().starts_with("/p/a/de.lproj/Boats.strings! "));
}

TEST_F(StringsSaveTest, ANewFileIsLikeTheDevelopmentLanguages) {
  using namespace std::string_literals;
  addFile(addTable("a", "Boats"), "en", "\xFF\xFE\"\0b\0\"\0 \0=\0 \0\"\0c\0\"\0;\0\r\0\n\0"s);
  edit(0, "b", "de", "ä");
  EXPECT_EQ(plan(), Lines{"/p/a/de.lproj/Boats.strings: "
                          "\xFF\xFE\"\0b\0\"\0 \0=\0 \0\"\0\xE4\0\"\0;\0\r\0\n\0"s});
  ASSERT_TRUE(m_plan.front().expected);
  EXPECT_FALSE(*m_plan.front().expected);
}

TEST_F(StringsSaveTest, ANewFileIsInUtf8WhereOnlyTheProjectKnowsTheEncoding) {
  constexpr std::uint32_t kMacRoman = 30;
  StringsTable& table = addTable("a", "Boats");
  addFile(table, "en", "\"\x8A\" = \"1\";\r\n");
  table.files.front().encoding = kMacRoman;
  edit(0, "ä", "de", "x");
  EXPECT_EQ(plan(), Lines{"/p/a/de.lproj/Boats.strings: \"ä\" = \"x\";\r\n"});
}

TEST_F(StringsSaveTest, ANewFileWithoutADevelopmentLanguageIsInUtf8) {
  addTable("a", "Boats");
  edit(0, "b", "de", "ä");
  EXPECT_EQ(plan(), Lines{"/p/a/de.lproj/Boats.strings: \"b\" = \"ä\";\n"});
}

TEST_F(StringsSaveTest, ANewFileGoesToTheDirectoryThatOtherTablesHaveForItsLanguage) {
  StringsTable& other = addTable("a", "Ships");
  other.addFile({FileUrl("/p/a/German.lproj/Ships.strings"), LanguageCode("de"), true, {}, false});
  addTable("a", "Boats");
  edit(1, "b", "de", "x");
  EXPECT_EQ(plan(), Lines{"/p/a/German.lproj/Boats.strings: \"b\" = \"x\";\n"});
}

TEST_F(StringsSaveTest, NoFileIsMadeForWhatIsTakenOut) {
  addFile(addTable("a", "Boats"), "en", "a = 1;\n");
  edit(0, "a", "de", std::nullopt);
  EXPECT_EQ(plan(), Lines());
}

TEST_F(StringsSaveTest, ATableWithoutADirectoryIsLeftOut) {
  addTable("a", "Boats").directory = FileUrl();
  edit(0, "a", "de", "x");
  EXPECT_EQ(plan(), Lines());
}

TEST_F(StringsSaveTest, WhatWasTypedAndTakenBackChangesNoByte) {
  addFile(addTable("a", "Boats"), "de", "/* c */ \"\\U0061\" = 'former';");
  edit(0, "a", "de", "x");
  edit(0, "a", "de", "former");
  EXPECT_EQ(plan(), Lines{"/p/a/de.lproj/Boats.strings: /* c */ \"\\U0061\" = 'former';"});
}

}  // namespace
}  // namespace glossmill
