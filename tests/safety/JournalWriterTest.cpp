#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "safety/JournalWriter.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

const FileUrl kJournal("/state/glossmill/projects/App/journal");

class JournalWriterTest : public testing::Test {
 protected:
  std::optional<std::string> journal() { return files.bytesOf(kJournal.path()); }

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
};

TEST_F(JournalWriterTest, LinesAreThereInTheirOrderAfterAFlush) {
  JournalWriter writer(disk, kJournal);
  std::string expected;
  for (int line = 0; line < 1000; ++line) {
    const std::string text = "line " + std::to_string(line) + "\n";
    writer.append(text);
    expected += text;
    if (line % 300 == 0) writer.flush();
  }
  writer.flush();
  EXPECT_EQ(journal(), expected);
}

TEST_F(JournalWriterTest, WhatIsLeftIsWrittenAtTheEnd) {
  { JournalWriter(disk, kJournal).append("line\n"); }
  EXPECT_EQ(journal(), "line\n");
}

TEST_F(JournalWriterTest, AnotherTextTakesThePlaceOfAllThatWasThere) {
  JournalWriter writer(disk, kJournal);
  writer.append("old\n");
  writer.flush();
  writer.append("gone\n");
  writer.replace("new\n");
  writer.append("more\n");
  writer.flush();
  EXPECT_EQ(journal(), "new\nmore\n");
}

TEST_F(JournalWriterTest, AnEmptyJournalHasNoFile) {
  JournalWriter writer(disk, kJournal);
  writer.append("old\n");
  writer.flush();
  writer.replace("");
  writer.flush();
  EXPECT_EQ(journal(), std::nullopt);
}

TEST_F(JournalWriterTest, AFailureIsToldAndGoneWithTheNextSuccess) {
  disk.setStateDirectory(std::nullopt);
  JournalWriter writer(disk, kJournal);
  writer.append("line\n");
  writer.flush();
  ASSERT_TRUE(writer.problem());
  EXPECT_EQ(writer.problem()->sentence, "There is no state directory.");
  disk.setStateDirectory(FileUrl("/state/glossmill"));
  writer.replace("line\n");
  writer.flush();
  EXPECT_EQ(writer.problem(), std::nullopt);
}

TEST_F(JournalWriterTest, NothingIsMadeBeforeTheFirstLine) {
  JournalWriter writer(disk, kJournal);
  writer.flush();
  EXPECT_EQ(journal(), std::nullopt);
}

}  // namespace
}  // namespace glossmill
