#include <gtest/gtest.h>

#include <functional>
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

using Texts = std::map<std::string, std::string>;  ///< by path

const FileUrl kApp("/x/App");
const SaveOrder kOrder{kApp, "0.1", "save", 1795283100, {}, false};

const Texts kOld = {{"/x/App/de.lproj/Localizable.strings", "old de"},
                    {"/x/App/fr.lproj/Localizable.strings", "old fr"}};
const Texts kNew = {{"/x/App/de.lproj/Localizable.strings", "new de"},
                    {"/x/App/fr.lproj/Localizable.strings", "new fr"},
                    {"/x/App/sv.lproj/Localizable.strings", "new sv"}};

std::vector<FileText> plan() {
  std::vector<FileText> texts;
  for (const auto& [path, content] : kNew) {
    FileText& text = texts.emplace_back();
    text.file = FileUrl(path);
    text.bytes = [content = content] { return onePiece(content); };
  }
  return texts;
}

/// A project with two strings files, saved with a third.
struct FaultyProject {
  FaultyProject() {
    for (const auto& [path, text] : kOld) files.addFile(path, text);
  }

  Texts texts() {
    Texts found;
    for (const auto& [path, text] : kNew) {
      if (const auto bytes = files.bytesOf(path)) found[path] = *bytes;
    }
    return found;
  }

  InMemoryFiles files;
  InMemorySaveDisk disk{files};
};

/// Each file is as it was or as it was to become, and whoever says that all is well is right.
void expectNothingLost(FaultyProject& project, const SaveResult& result, int fault) {
  bool allWritten = !result.refusal;
  for (const FileOutcome& outcome : result.files) allWritten = allWritten && outcome.isWritten();
  const Texts found = project.texts();
  for (const auto& [path, text] : kNew) {
    const auto former = kOld.find(path);
    const auto now = found.find(path);
    const bool isOld = former == kOld.end() ? now == found.end() : now != found.end() && now->second == former->second;
    const bool isNew = now != found.end() && now->second == text;
    EXPECT_TRUE(isOld || isNew) << path << " at " << fault;
    if (allWritten) {
      EXPECT_TRUE(isNew) << path << " at " << fault;
    }
    if (result.refusal) {
      EXPECT_TRUE(isOld) << path << " at " << fault;
    }
  }
}

void saveWithFaults(int count, const std::function<void(InMemorySaveDisk&, int)>& set) {
  ASSERT_GT(count, 0);
  for (int fault = 1; fault <= count; ++fault) {
    FaultyProject project;
    set(project.disk, fault);
    const SaveResult result = SaveTransaction(project.files, project.disk, kOrder).save(plan());
    expectNothingLost(project, result, fault);
    SavedVersions versions(project.files, project.disk, kApp);
    EXPECT_EQ(findUnfinishedSave(project.files, project.disk, versions), std::nullopt) << fault;
    const SaveResult again = SaveTransaction(project.files, project.disk, kOrder).save(plan());
    EXPECT_FALSE(again.refusal) << fault;
    EXPECT_EQ(project.texts(), kNew) << fault;
  }
}

TEST(SaveFaults, EveryOperationMayFail) {
  FaultyProject project;
  SaveTransaction(project.files, project.disk, kOrder).save(plan());
  saveWithFaults(static_cast<int>(project.disk.operations().size()),
                 [](InMemorySaveDisk& disk, int fault) { disk.failAt(fault); });
}

TEST(SaveFaults, EveryQuestionMayFail) {
  FaultyProject project;
  SaveTransaction(project.files, project.disk, kOrder).save(plan());
  saveWithFaults(project.disk.questions(), [](InMemorySaveDisk& disk, int fault) { disk.failQuestion(fault); });
}

TEST(SaveFaults, WhatIsToBeCopiedMayEndTooEarly) {
  FaultyProject project;
  const std::string path = kOld.begin()->first;
  // It is read to compare it, to copy it, and so on: a file that changes between the two is not kept as it was.
  int opened = 0;
  project.files.onOpen = [&](const std::string& file) {
    if (file == path && ++opened == 2) project.files.endReadingAfter(path, 2);
  };
  const SaveResult result = SaveTransaction(project.files, project.disk, kOrder).save(plan());
  ASSERT_GE(opened, 2);
  ASSERT_TRUE(result.refusal);
  EXPECT_EQ(result.refusal->kind, SaveRefusal::Kind::NoCopy);
  EXPECT_EQ(project.texts(), kOld);
}

TEST(SaveFaults, WhatIsKeptAndDamagedIsNotBroughtBack) {
  FaultyProject project;
  SaveTransaction(project.files, project.disk, kOrder).save(plan());
  SavedVersions versions(project.files, project.disk, kApp);
  const RestorePlan back = planRestore(project.files, versions, versions.list().at(0), {}, false);
  const FileUrl contents = stateDirectoryOf(project.disk, kApp).value().appending("contents");
  const auto entries = project.files.list(contents);
  for (const DirectoryEntry& entry : entries.value()) {
    project.files.addFile(contents.appending(entry.name).path(), "damaged");
  }
  const SaveResult result = SaveTransaction(project.files, project.disk, kOrder).save(back.texts);
  EXPECT_EQ(result.files.at(0).kind, FileOutcome::Kind::Failed);
  EXPECT_EQ(project.texts().at(kNew.begin()->first), kNew.begin()->second);
}

TEST(SaveFaults, EveryOperationOfTakingBackMayFail) {
  const auto takenBack = [](FaultyProject& project, int fault) {
    SaveTransaction(project.files, project.disk, kOrder).save(plan());
    SavedVersions versions(project.files, project.disk, kApp);
    const RestorePlan back = planRestore(project.files, versions, versions.list().at(0), {}, false);
    const int before = static_cast<int>(project.disk.operations().size());
    if (fault > 0) project.disk.failAt(before + fault);
    const SaveResult result = SaveTransaction(project.files, project.disk, kOrder).save(back.texts);
    bool allWritten = !result.refusal;
    for (const FileOutcome& outcome : result.files) allWritten = allWritten && outcome.isWritten();
    if (allWritten) {
      EXPECT_EQ(project.texts(), kOld) << fault;
    }
    if (result.refusal) {
      EXPECT_EQ(project.texts(), kNew) << fault;
    }
    return static_cast<int>(project.disk.operations().size()) - before;
  };
  FaultyProject whole;
  const int count = takenBack(whole, 0);
  ASSERT_GT(count, 0);
  for (int fault = 1; fault <= count; ++fault) {
    FaultyProject project;
    takenBack(project, fault);
  }
}

}  // namespace
}  // namespace glossmill
