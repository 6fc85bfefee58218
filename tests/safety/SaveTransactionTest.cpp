#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "safety/ProjectState.h"
#include "safety/Restore.h"
#include "safety/SaveTransaction.h"
#include "safety/UnfinishedSave.h"
#include "support/InMemorySaveDisk.h"

namespace glossmill {
namespace {

using Kind = FileOutcome::Kind;
using Contents = std::map<std::string, std::optional<std::string>>;

const FileUrl kProject("/x/App");

FileText textFor(const std::string& file, const std::string& content) {
  FileText text;
  text.file = FileUrl(file);
  text.bytes = [content] {
    return [content, given = false]() mutable -> Result<std::string_view> {
      const std::string_view piece = given ? std::string_view() : std::string_view(content);
      given = true;
      return piece;
    };
  };
  return text;
}

/// Two languages that have a file and one that has none.
class SaveTransactionTest : public testing::Test {
 protected:
  SaveTransactionTest() {
    files.addFile("/x/App/de.lproj/Localizable.strings", "old de");
    files.addFile("/x/App/fr.lproj/Localizable.strings", "old fr");
    files.addDirectory("/x/App/nb.lproj");
  }

  static std::vector<FileText> newTexts() {
    return {textFor("/x/App/de.lproj/Localizable.strings", "new de"),
            textFor("/x/App/fr.lproj/Localizable.strings", "new fr"),
            textFor("/x/App/nb.lproj/Localizable.strings", "new nb")};
  }

  SaveResult save(const std::vector<FileText>& texts, SaveAllowance allowance = {}) {
    return SaveTransaction(files, disk, {kProject, "0.1", "save", 1795283100, allowance, false}).save(texts);
  }

  Contents contents() {
    Contents found;
    for (const FileText& text : newTexts()) found[text.file.path()] = files.bytesOf(text.file.path());
    return found;
  }

  static Contents oldContents() {
    return {{"/x/App/de.lproj/Localizable.strings", "old de"},
            {"/x/App/fr.lproj/Localizable.strings", "old fr"},
            {"/x/App/nb.lproj/Localizable.strings", std::nullopt}};
  }
  static Contents newContents() {
    return {{"/x/App/de.lproj/Localizable.strings", "new de"},
            {"/x/App/fr.lproj/Localizable.strings", "new fr"},
            {"/x/App/nb.lproj/Localizable.strings", "new nb"}};
  }

  /// Places in the list of operations of those that begin so.
  std::vector<std::size_t> placesOf(std::string_view start) {
    std::vector<std::size_t> places;
    for (std::size_t at = 0; at < disk.operations().size(); ++at) {
      if (disk.operations()[at].starts_with(start)) places.push_back(at);
    }
    return places;
  }

  bool hasTemporaries() {
    return !disk.abandonedWrites(FileUrl("/x/App/de.lproj")).empty() ||
           !disk.abandonedWrites(FileUrl("/x/App/fr.lproj")).empty() ||
           !disk.abandonedWrites(FileUrl("/x/App/nb.lproj")).empty();
  }

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
};

TEST_F(SaveTransactionTest, EveryFileGetsItsTextAndTellsWhatBecameOfIt) {
  const SaveResult result = save(newTexts());
  ASSERT_FALSE(result.refusal);
  ASSERT_EQ(result.files.size(), 3U);
  EXPECT_EQ(result.files[0].kind, Kind::Changed);
  EXPECT_EQ(result.files[2].kind, Kind::Created);
  EXPECT_EQ(contents(), newContents());
  EXPECT_FALSE(hasTemporaries());
}

TEST_F(SaveTransactionTest, AllTextsLieOnTheDiskThenAllCopiesAreMadeAndOnlyThenTheFirstFileIsReplaced) {
  save(newTexts());
  const auto prepared = placesOf("prepare /x");
  const auto kept = placesOf("keep /state");
  const auto renamed = placesOf("rename /x");
  ASSERT_EQ(prepared.size(), 3U);
  ASSERT_EQ(kept.size(), 3U);  // two contents and the manifest
  ASSERT_EQ(renamed.size(), 3U);
  EXPECT_LT(prepared.back(), kept.front());
  EXPECT_LT(kept.back(), renamed.front());
}

TEST_F(SaveTransactionTest, AFileWhoseBytesWouldNotChangeIsNotTouched) {
  const SaveResult result = save({textFor("/x/App/de.lproj/Localizable.strings", "old de")});
  EXPECT_EQ(result.files.at(0).kind, Kind::Unchanged);
  EXPECT_TRUE(disk.operations().empty());
  EXPECT_EQ(result.id, std::nullopt);
}

TEST_F(SaveTransactionTest, AFileOutsideTheProjectRefusesTheWholeSave) {
  files.addFile("/home/authorized_keys", "mine");
  files.addLink("/x/App/nb.lproj/Localizable.strings", "/home/authorized_keys");
  const SaveResult result = save(newTexts());
  ASSERT_TRUE(result.refusal);
  EXPECT_EQ(result.refusal->kind, SaveRefusal::Kind::Outside);
  EXPECT_EQ(result.refusal->places.at(0).file, FileUrl("/x/App/nb.lproj/Localizable.strings"));
  EXPECT_EQ(files.bytesOf("/home/authorized_keys"), "mine");
  EXPECT_EQ(files.bytesOf("/x/App/de.lproj/Localizable.strings"), "old de");
  EXPECT_FALSE(hasTemporaries());
}

TEST_F(SaveTransactionTest, AFileOutsideIsWrittenWhenThatIsAllowed) {
  files.addFile("/home/shared.strings", "old");
  files.addLink("/x/App/nb.lproj/Localizable.strings", "/home/shared.strings");
  ASSERT_FALSE(save(newTexts(), {.outside = true}).refusal);
  EXPECT_EQ(files.bytesOf("/home/shared.strings"), "new nb");
}

TEST_F(SaveTransactionTest, ARefusalTakesAwayTheDirectoriesThatWereMade) {
  files.addFile("/home/mine", "mine");
  files.addLink("/x/App/nb.lproj/Localizable.strings", "/home/mine");
  std::vector<FileText> texts = newTexts();
  texts.insert(texts.begin(), textFor("/x/App/deep/sv.lproj/Localizable.strings", "sv"));
  ASSERT_TRUE(save(texts).refusal);
  EXPECT_FALSE(files.exists("/x/App/deep"));
}

TEST_F(SaveTransactionTest, AFileThatChangedSinceItWasReadRefusesTheSaveAndNamesAllOfThem) {
  std::vector<FileText> texts = newTexts();
  for (FileText& text : texts) text.expected = disk.stampOf(text.file).value();
  files.addFile("/x/App/fr.lproj/Localizable.strings", "edited");
  files.addFile("/x/App/nb.lproj/Localizable.strings", "appeared");
  const SaveResult result = save(texts);
  ASSERT_TRUE(result.refusal);
  EXPECT_EQ(result.refusal->kind, SaveRefusal::Kind::Changed);
  EXPECT_EQ(result.refusal->places.size(), 2U);
  EXPECT_TRUE(disk.operations().empty());
  EXPECT_FALSE(save(texts, {.changed = true}).refusal);
  EXPECT_EQ(contents(), newContents());
}

TEST_F(SaveTransactionTest, AFileThatIsWrittenWhileCopiesAreMadeRefusesTheSave) {
  disk.onOperation = [this](const std::string& operation) {
    if (operation.starts_with("keep ")) files.addFile("/x/App/fr.lproj/Localizable.strings", "edited meanwhile");
  };
  const SaveResult result = save({newTexts().at(0), newTexts().at(1)});
  disk.onOperation = nullptr;
  ASSERT_TRUE(result.refusal);
  EXPECT_EQ(result.refusal->kind, SaveRefusal::Kind::Changed);
  EXPECT_EQ(result.id, std::nullopt);
  EXPECT_EQ(files.bytesOf("/x/App/de.lproj/Localizable.strings"), "old de");
  EXPECT_EQ(files.bytesOf("/x/App/fr.lproj/Localizable.strings"), "edited meanwhile");
  EXPECT_FALSE(hasTemporaries());
  EXPECT_TRUE(SavedVersions(files, disk, kProject).list().empty());
}

TEST_F(SaveTransactionTest, AFileThatIsWrittenWhileOthersAreReplacedStaysAsItIs) {
  disk.onOperation = [this](const std::string& operation) {
    if (operation != "rename /x/App/de.lproj/Localizable.strings") return;
    files.addFile("/x/App/fr.lproj/Localizable.strings", "edited meanwhile");
  };
  const SaveResult result = save(newTexts());
  EXPECT_FALSE(result.refusal);
  EXPECT_EQ(result.files.at(1).kind, Kind::Failed);
  EXPECT_EQ(files.bytesOf("/x/App/fr.lproj/Localizable.strings"), "edited meanwhile");
  EXPECT_EQ(files.bytesOf("/x/App/de.lproj/Localizable.strings"), "new de");
  EXPECT_FALSE(hasTemporaries());
}

TEST_F(SaveTransactionTest, AFileThatVanishedSinceItWasReadIsWrittenAnew) {
  std::vector<FileText> texts = newTexts();
  for (FileText& text : texts) text.expected = disk.stampOf(text.file).value();
  files.remove("/x/App/fr.lproj/Localizable.strings");
  ASSERT_FALSE(save(texts).refusal);
  EXPECT_EQ(contents(), newContents());
}

TEST_F(SaveTransactionTest, WithoutAPlaceForTheCopyNothingIsWrittenUnlessThatIsAllowed) {
  disk.setStateDirectory(std::nullopt);
  const SaveResult refused = save(newTexts());
  ASSERT_TRUE(refused.refusal);
  EXPECT_EQ(refused.refusal->kind, SaveRefusal::Kind::NoCopy);
  EXPECT_EQ(contents(), oldContents());
  EXPECT_FALSE(hasTemporaries());
  EXPECT_FALSE(save(newTexts(), {.noCopy = true}).refusal);
  EXPECT_EQ(contents(), newContents());
}

TEST_F(SaveTransactionTest, AFileThatTheSystemRefusesIsReportedAndTheOthersAreWritten) {
  disk.failAt(2);  // the second text
  const SaveResult result = save(newTexts());
  ASSERT_EQ(result.files.size(), 3U);
  EXPECT_EQ(result.files[1].kind, Kind::Failed);
  EXPECT_EQ(result.files[1].error.sentence, "The disk is broken.");
  EXPECT_EQ(files.bytesOf("/x/App/fr.lproj/Localizable.strings"), "old fr");
  EXPECT_EQ(files.bytesOf("/x/App/nb.lproj/Localizable.strings"), "new nb");
}

TEST_F(SaveTransactionTest, MoreEntriesThanMayBeDroppedRefuseTheSaveBeforeAnythingIsDone) {
  std::vector<FileText> texts = newTexts();
  texts[0].entriesBefore = 5;
  texts[0].entriesAfter = 2;
  texts[1].entriesBefore = 1;
  texts[1].entriesAfter = 9;  // what one file gains makes up for nothing
  const auto saveWith = [&](std::uint64_t most) {
    return SaveTransaction(files, disk, {kProject, "0.1", "save", 1795283100, {}, false, most}).save(texts);
  };
  const SaveResult refused = saveWith(2);
  ASSERT_TRUE(refused.refusal);
  EXPECT_EQ(refused.refusal->kind, SaveRefusal::Kind::Dropped);
  EXPECT_EQ(refused.refusal->places.at(0).sentence, "3 entries would not be written again");
  EXPECT_TRUE(disk.operations().empty());
  EXPECT_FALSE(saveWith(3).refusal);
}

TEST_F(SaveTransactionTest, EntriesThatNobodyCountedMayBeTooMany) {
  std::vector<FileText> texts = newTexts();
  texts[0].entriesBefore = 0;
  const auto refusal =
      SaveTransaction(files, disk, {kProject, "0.1", "save", 1795283100, {}, false, 100}).save(texts).refusal;
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->places.at(0).sentence, "an unknown number of entries would not be written again");
}

TEST_F(SaveTransactionTest, EqualContentsAreKeptOnce) {
  files.addFile("/x/App/fr.lproj/Localizable.strings", "old de");
  save(newTexts());
  EXPECT_EQ(placesOf("keep /state").size(), 2U);
}

TEST_F(SaveTransactionTest, ASaveIsKeptWithItsFilesAndCountsAndCanBeTakenBack) {
  std::vector<FileText> texts = newTexts();
  texts[0].language = "de";
  texts[0].entriesBefore = 282;
  texts[0].entriesAfter = 99;
  save(texts);
  SavedVersions versions(files, disk, kProject);
  const std::vector<SavedVersion> list = versions.list();
  ASSERT_EQ(list.size(), 1U);
  EXPECT_TRUE(list[0].isFinished);
  EXPECT_EQ(list[0].manifest.files[0].entriesBefore, 282U);
  const RestorePlan plan = planRestore(files, versions, list[0], {}, false);
  EXPECT_EQ(plan.texts.size(), 3U);
  EXPECT_FALSE(save(plan.texts).refusal);
  EXPECT_EQ(contents(), oldContents());
}

TEST_F(SaveTransactionTest, TakingBackIsASaveThatCanBeTakenBack) {
  save(newTexts());
  SavedVersions versions(files, disk, kProject);
  save(planRestore(files, versions, versions.list().at(0), {}, false).texts);
  ASSERT_EQ(versions.list().size(), 2U);
  save(planRestore(files, versions, versions.list().at(0), {}, false).texts);
  EXPECT_EQ(contents(), newContents());
}

TEST_F(SaveTransactionTest, AFileThatWasEditedSinceIsNotTakenBackUnasked) {
  save(newTexts());
  files.addFile("/x/App/de.lproj/Localizable.strings", "edited");
  SavedVersions versions(files, disk, kProject);
  const SavedVersion version = versions.list().at(0);
  const RestorePlan plan = planRestore(files, versions, version, {}, false);
  EXPECT_EQ(plan.changed, std::vector{FileUrl("/x/App/de.lproj/Localizable.strings")});
  EXPECT_EQ(plan.texts.size(), 2U);
  EXPECT_EQ(planRestore(files, versions, version, {}, true).texts.size(), 3U);
}

TEST_F(SaveTransactionTest, OnlyTheFilesThatAreWantedAreTakenBack) {
  save(newTexts());
  SavedVersions versions(files, disk, kProject);
  const FileUrl wanted("/x/App/fr.lproj/Localizable.strings");
  const RestorePlan plan = planRestore(files, versions, versions.list().at(0), {wanted}, false);
  ASSERT_EQ(plan.texts.size(), 1U);
  EXPECT_EQ(plan.texts[0].file, wanted);
}

TEST_F(SaveTransactionTest, AKillNeverLeavesADirectoryThatNobodyFills) {
  const std::vector<FileText> texts = {textFor("/x/App/deep/sv.lproj/Localizable.strings", "new sv")};
  const SaveOrder order{kProject, "0.1", "save", 1795283100, {}, false};
  SaveTransaction(files, disk, order).save(texts);
  const int operations = static_cast<int>(disk.operations().size());
  EXPECT_EQ(placesOf("mkdir /x").size(), 2U);
  EXPECT_LT(placesOf("keep /state").front(), placesOf("mkdir /x").front());
  for (int operation = 1; operation <= operations; ++operation) {
    InMemoryFiles fresh;
    fresh.addDirectory("/x/App");
    InMemorySaveDisk other(fresh);
    other.killBefore(operation);
    EXPECT_THROW(SaveTransaction(fresh, other, order).save(texts), InMemorySaveDisk::Killed);
    other.goOn();
    SavedVersions versions(fresh, other, kProject);
    EXPECT_EQ(findUnfinishedSave(fresh, other, versions), std::nullopt) << operation;
    const bool isWritten = fresh.exists("/x/App/deep/sv.lproj/Localizable.strings");
    EXPECT_EQ(fresh.exists("/x/App/deep"), isWritten) << operation;
    EXPECT_EQ(SaveTransaction(fresh, other, order).save(texts).refusal, std::nullopt);
    EXPECT_EQ(fresh.bytesOf("/x/App/deep/sv.lproj/Localizable.strings"), "new sv") << operation;
  }
}

TEST_F(SaveTransactionTest, ARefusedSaveLeavesNoRecordOfTheDirectoriesThatItMade) {
  files.addFile("/home/mine", "mine");
  files.addLink("/x/App/nb.lproj/Localizable.strings", "/home/mine");
  ASSERT_TRUE(save({textFor("/x/App/sv.lproj/Localizable.strings", "sv"), newTexts()[2]}).refusal);
  EXPECT_TRUE(SavedVersions(files, disk, kProject).list().empty());
}

TEST_F(SaveTransactionTest, ASaveThatWasNeverNotedGoesWithTheNext) {
  const FileUrl saves = stateDirectoryOf(disk, kProject).value().appending("saves");
  files.addDirectory(saves.appending("2026-01-01T00-00-00Z").path());
  save(newTexts());
  EXPECT_FALSE(files.exists(saves.appending("2026-01-01T00-00-00Z").path()));
  EXPECT_EQ(SavedVersions(files, disk, kProject).list().size(), 1U);
}

/// Where a kill in front of each operation leaves the files, and what the next command makes of it.
TEST_F(SaveTransactionTest, AKillAtAnyMomentLeavesAllOldOrAllNewOrASaveThatIsSeenAndCanGoBothWays) {
  save(newTexts());
  const int operations = static_cast<int>(disk.operations().size());
  int unfinished = 0;
  for (int operation = 1; operation <= operations; ++operation) {
    for (const bool forwards : {true, false}) {
      InMemoryFiles fresh;
      fresh.addFile("/x/App/de.lproj/Localizable.strings", "old de");
      fresh.addFile("/x/App/fr.lproj/Localizable.strings", "old fr");
      fresh.addDirectory("/x/App/nb.lproj");
      InMemorySaveDisk other(fresh);
      other.killBefore(operation);
      const SaveOrder order{kProject, "0.1", "save", 1795283100, {}, false};
      EXPECT_THROW(SaveTransaction(fresh, other, order).save(newTexts()), InMemorySaveDisk::Killed);
      other.goOn();
      const auto now = [&fresh] {
        Contents found;
        for (const FileText& text : newTexts()) found[text.file.path()] = fresh.bytesOf(text.file.path());
        return found;
      };
      SavedVersions versions(fresh, other, kProject);
      const std::optional<SavedVersion> open = findUnfinishedSave(fresh, other, versions);
      EXPECT_EQ(open.has_value(), now() != oldContents() && now() != newContents()) << operation;
      if (!open) continue;
      ++unfinished;
      if (forwards) {
        EXPECT_TRUE(finishSave(fresh, other, versions, *open));
        EXPECT_EQ(now(), newContents()) << operation;
      } else {
        SaveTransaction(fresh, other, order).save(planRestore(fresh, versions, *open, {}, false).texts);
        EXPECT_TRUE(closeSave(other, versions, *open));
        EXPECT_EQ(now(), oldContents()) << operation;
      }
      EXPECT_EQ(findUnfinishedSave(fresh, other, versions), std::nullopt) << operation;
    }
  }
  EXPECT_EQ(unfinished, 4);  // behind the first and the second of three renames, both ways
}

}  // namespace
}  // namespace glossmill
