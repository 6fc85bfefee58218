#include <gtest/gtest.h>

#include "safety/EditJournal.h"
#include "safety/KeptJournals.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

const FileUrl kJournaled("/x/App");

JournalEdit journalEdit(const std::string& key, std::optional<std::string> before, std::optional<std::string> after) {
  return {1795283100, "", key, "de", std::move(before), std::move(after)};
}

class EditJournalTest : public testing::Test {
 protected:
  EditJournalTest() { files.addDirectory("/x/App"); }

  std::vector<JournalEdit> kept() {
    KeptJournals journals(files, disk);
    journals.take(kJournaled);
    return journals.edits();
  }
  std::vector<std::string> journalNames() {
    std::vector<std::string> names;
    const auto entries = files.list(journalsOf(disk, kJournaled).value());
    if (!entries) return names;
    for (const DirectoryEntry& entry : entries.value()) names.push_back(entry.name);
    return names;
  }

  std::optional<std::string> journalBytes() {
    const FileUrl directory = journalsOf(disk, kJournaled).value().appending(journalNames().at(0));
    return files.bytesOf(directory.appending("edits").path());
  }

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
};

TEST_F(EditJournalTest, WhatWasNotSavedIsThereAfterTheEnd) {
  {
    EditJournal journal(disk, kJournaled);
    journal.add(journalEdit("Ebb", std::nullopt, "E"));
    journal.add(journalEdit("Ebb", "E", "Ebbe"));
    journal.add(journalEdit("Flood", "Flut", std::nullopt));
    EXPECT_EQ(journal.unsaved().count(), 2U);
  }
  EXPECT_EQ(kept(),
            (std::vector{journalEdit("Ebb", std::nullopt, "Ebbe"), journalEdit("Flood", "Flut", std::nullopt)}));
}

TEST_F(EditJournalTest, NothingIsThereAfterASessionWithoutEditsOrWithEditsThatLedBack) {
  { const EditJournal journal(disk, kJournaled); }
  EXPECT_TRUE(journalNames().empty());
  {
    EditJournal journal(disk, kJournaled);
    journal.add(journalEdit("Ebb", std::nullopt, "E"));
    journal.flush();
    journal.add(journalEdit("Ebb", "E", std::nullopt));
  }
  EXPECT_TRUE(journalNames().empty());
}

TEST_F(EditJournalTest, WhatIsOverLeavesTheDiskToo) {
  {
    EditJournal journal(disk, kJournaled);
    journal.add(journalEdit("Ebb", std::nullopt, "Ebbe"));
    journal.add(journalEdit("Flood", std::nullopt, "Flut"));
    journal.retire([](const JournalEdit& one) { return one.key == "Ebb"; });
  }
  EXPECT_EQ(kept(), std::vector{journalEdit("Flood", std::nullopt, "Flut")});
}

TEST_F(EditJournalTest, WhatIsDiscardedIsGone) {
  EditJournal journal(disk, kJournaled);
  journal.add(journalEdit("Ebb", std::nullopt, "Ebbe"));
  journal.flush();
  journal.discard();
  journal.flush();
  EXPECT_TRUE(journal.unsaved().empty());
  EXPECT_EQ(journalBytes(), std::nullopt);
}

TEST_F(EditJournalTest, ASessionThatGoesOnIsNotTakenForOneThatHasEnded) {
  EditJournal journal(disk, kJournaled);
  journal.add(journalEdit("Ebb", std::nullopt, "Ebbe"));
  journal.flush();
  EXPECT_EQ(journalNames().size(), 1U);
  EXPECT_TRUE(kept().empty());
}

TEST_F(EditJournalTest, ADiskThatFailedGetsEverythingWithTheNextEdit) {
  {
    EditJournal journal(disk, kJournaled);
    disk.setStateDirectory(std::nullopt);
    journal.add(journalEdit("Ebb", std::nullopt, "Ebbe"));
    journal.flush();
    EXPECT_TRUE(journal.problem());
    disk.setStateDirectory(FileUrl("/state/glossmill"));
    journal.add(journalEdit("Flood", std::nullopt, "Flut"));
    journal.flush();
    EXPECT_FALSE(journal.problem());
  }
  EXPECT_EQ(kept().size(), 2U);
}

TEST_F(EditJournalTest, WithoutAPlaceForItTheEditsAreCountedAllTheSame) {
  disk.setStateDirectory(std::nullopt);
  EditJournal journal(disk, kJournaled);
  journal.add(journalEdit("Ebb", std::nullopt, "Ebbe"));
  journal.flush();
  ASSERT_TRUE(journal.problem());
  EXPECT_EQ(journal.problem()->sentence, "There is no state directory.");
  EXPECT_EQ(journal.unsaved().count(), 1U);
}

class KeptJournalsTest : public EditJournalTest {
 protected:
  /// A session that ends without saving.
  void leave(const std::vector<JournalEdit>& edits) {
    EditJournal journal(disk, kJournaled);
    for (const JournalEdit& one : edits) journal.add(one);
  }
  KeptJournals& taken() {
    journals.take(kJournaled);
    return journals;
  }

  KeptJournals journals{files, disk};
};

TEST_F(KeptJournalsTest, TheNewestSessionComesFirst) {
  leave({journalEdit("Ebb", std::nullopt, "old")});
  leave({journalEdit("Ebb", std::nullopt, "new")});
  const std::vector expected{journalEdit("Ebb", std::nullopt, "new"), journalEdit("Ebb", std::nullopt, "old")};
  EXPECT_EQ(taken().edits(), expected);
}

TEST_F(KeptJournalsTest, NobodyElseTakesThemMeanwhile) {
  leave({journalEdit("Ebb", std::nullopt, "Ebbe")});
  EXPECT_EQ(taken().edits().size(), 1U);
  EXPECT_TRUE(kept().empty());
  journals.release();
  EXPECT_EQ(kept().size(), 1U);
}

TEST_F(KeptJournalsTest, WhatIsOverLeavesTheDiskAndTheRestStays) {
  leave({journalEdit("Ebb", std::nullopt, "Ebbe"), journalEdit("Flood", std::nullopt, "Flut")});
  leave({journalEdit("Ebb", std::nullopt, "Ebbe!")});
  EXPECT_TRUE(taken().retire([](const JournalEdit& one) { return one.key == "Ebb"; }));
  EXPECT_EQ(journals.edits(), std::vector{journalEdit("Flood", std::nullopt, "Flut")});
  journals.release();
  EXPECT_EQ(kept(), std::vector{journalEdit("Flood", std::nullopt, "Flut")});
  EXPECT_EQ(journalNames().size(), 1U);
}

TEST_F(KeptJournalsTest, ADiskThatFailsKeepsThem) {
  leave({journalEdit("Ebb", std::nullopt, "Ebbe")});
  taken();
  disk.failAt(static_cast<int>(disk.operations().size()) + 1);
  EXPECT_FALSE(journals.retire([](const JournalEdit&) { return true; }));
  journals.release();
  EXPECT_EQ(kept().size(), 1U);
}

TEST_F(KeptJournalsTest, AnotherProjectHasNone) {
  leave({journalEdit("Ebb", std::nullopt, "Ebbe")});
  KeptJournals others(files, disk);
  others.take(FileUrl("/x/Other"));
  EXPECT_TRUE(others.edits().empty());
}

}  // namespace
}  // namespace glossmill
