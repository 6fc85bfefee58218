#include <gtest/gtest.h>

#include <string>

#include "exchange/ImportKey.h"
#include "support/ExportedBlock.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"
#include "support/TableRecord.h"

namespace glossmill {
namespace {

std::string tableBlock(const LocalizeString& record, ExportScope scope = ExportScope::AllStrings) {
  std::string text;
  appendTableBlock(text, record, 12, kFrench, scope);
  return text;
}

TEST(TableText, HasTheTableInTheFirstLineOfABlock) {
  const auto record = tableRecord("app/Boats", "Open");
  record->setCommentArray({"Menu"});
  store(*record, kFrench, "Ouvrir");
  EXPECT_EQ(tableBlock(*record), "--- 12 --- app/Boats\n/* Menu */\nOpen\nOuvrir\n\n");
}

TEST(TableText, PutsEachTextOnOneLine) {
  const auto record = tableRecord("Boats", "a\n\tb // \"c\" /* d */");
  record->setCommentArray({"one", "two\\"});
  store(*record, kFrench, "x\r\ny");
  EXPECT_EQ(tableBlock(*record), "--- 12 --- Boats\n/* one\\ntwo\\\\ */\na\\n\\tb // \"c\" /* d */\nx\\r\\ny\n\n");
}

TEST(TableText, LeavesOutWhatIsTranslatedOrNotWanted) {
  const auto record = tableRecord("Boats", "Open");
  EXPECT_NE(tableBlock(*record, ExportScope::Untranslated), "");
  store(*record, kFrench, "");
  EXPECT_NE(tableBlock(*record, ExportScope::Untranslated), "");
  record->tableRow()->isWanted = false;
  EXPECT_EQ(tableBlock(*record, ExportScope::Untranslated), "");
  EXPECT_NE(tableBlock(*record), "");
  record->tableRow()->isWanted = true;
  store(*record, kFrench, "Ouvrir");
  EXPECT_EQ(tableBlock(*record, ExportScope::Untranslated), "");
}

TEST(TableText, EveryTextComesBackAsItWas) {
  for (const std::string text :
       {"a", "--- 1 --- Boats", "\\n", "\\\\n", "a\nb\tc\rd\\", "\"//\" /* x */", " blank ", "ä🚢"}) {
    const auto record = tableRecord("app/Boats", text);
    record->setCommentArray({text});
    store(*record, kFrench, text);
    const ImportTable table = tableTextImport("\n" + tableBlock(*record) + tableBlock(*tableRecord("b", "c")));
    ASSERT_EQ(table.size(), 1U) << text;
    EXPECT_EQ(table.begin()->first, importKey(*record));
    EXPECT_EQ(table.begin()->second, text);
  }
}

TEST(TableText, TheSameKeyOfTwoTablesIsTwoTexts) {
  const ImportTable table = tableTextImport("--- 1 --- a\n/* */\nk\nx\n\n--- 2 --- b\n/* */\nk\ny\n");
  EXPECT_EQ(table, (ImportTable{{importKey("a", "k"), "x"}, {importKey("b", "k"), "y"}}));
}

TEST(TableText, LineEndsOfAnotherSystemAndUnknownEscapesDoNoHarm) {
  const ImportTable table = tableTextImport("\r\n--- 1 --- a\r\n/* */\r\nk\r\nC:\\temp \\q\\\r\n\r\n");
  EXPECT_EQ(table, (ImportTable{{importKey("a", "k"), "C:\temp \\q\\"}}));
}

}  // namespace
}  // namespace glossmill
