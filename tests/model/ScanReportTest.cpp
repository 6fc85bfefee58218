#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/ScanReport.h"

namespace glossmill {
namespace {

const FileUrl kSource("/P/a.m");
const FileUrl kStringsFile("/P/de.lproj/Localizable.strings");

std::uint32_t rejectedFor(const FileFindings& file, CallRejection reason) {
  return file.rejectedCalls[static_cast<std::size_t>(reason)];
}

TEST(ScanReport, IsEmptyWhenNothingWasLeftOut) {
  ScanReport report;
  report.add(PackageFound{kSource});
  report.add(SourceBegins{kSource});
  report.add(StringsFileBegins{kStringsFile});
  report.add(LinesCounted{kStringsFile, 3});
  EXPECT_TRUE(report.files().empty());
  EXPECT_EQ(report.totals().rejectedCalls, 0U);
}

TEST(ScanReport, CountsTheRejectedCallsOfAFileByTheirReason) {
  ScanReport report;
  report.add(CallRejected{kSource, "x", CallRejection::NoComment});
  report.add(CallRejected{kSource, "y", CallRejection::Unbalanced});
  report.add(CallRejected{kSource, "z", CallRejection::NoComment});
  ASSERT_EQ(report.files().size(), 1U);
  EXPECT_EQ(report.files()[0].file, kSource);
  EXPECT_EQ(report.files()[0].role, FileRole::Source);
  EXPECT_EQ(rejectedFor(report.files()[0], CallRejection::NoComment), 2U);
  EXPECT_EQ(rejectedFor(report.files()[0], CallRejection::Unbalanced), 1U);
  EXPECT_EQ(rejectedFor(report.files()[0], CallRejection::Canceled), 0U);
}

TEST(ScanReport, CountsTheEntriesOfAFileThatWereLeftOut) {
  ScanReport report;
  report.add(EntryRejected{kStringsFile, "x", 1});
  report.add(EntryWithoutMatch{kStringsFile, "k", 2});
  report.add(EntryWithoutMatch{kStringsFile, "k", 3});
  ASSERT_EQ(report.files().size(), 1U);
  EXPECT_EQ(report.files()[0].role, FileRole::StringsFile);
  EXPECT_EQ(report.files()[0].rejectedEntries, 1U);
  EXPECT_EQ(report.files()[0].unmatchedEntries, 2U);
  EXPECT_FALSE(report.files()[0].unread);
}

TEST(ScanReport, KeepsWhyAFileCouldNotBeRead) {
  const FileUrl projectFile("/P/A.xcodeproj/project.pbxproj");
  ScanReport report;
  report.add(ProjectFileUnread{projectFile, {"It is gone."}});
  report.add(SourceUnread{kSource, {"It is locked."}});
  report.add(StringsFileUnread{kStringsFile, {"It is no text."}});
  ASSERT_EQ(report.files().size(), 3U);
  EXPECT_EQ(report.files()[0].role, FileRole::ProjectFile);
  EXPECT_EQ(report.files()[0].unread->sentence, "It is gone.");
  EXPECT_EQ(report.files()[1].unread->sentence, "It is locked.");
  EXPECT_EQ(report.files()[2].unread->sentence, "It is no text.");
}

TEST(ScanReport, TakesOverWhatWasNotReadAndKeepsWhatIsKnownOfAFile) {
  ScanReport report;
  report.add(CallRejected{kSource, "x", CallRejection::NoKey});
  report.add(StringsFileUnread{kStringsFile, {"It is no text."}});
  report.addUnread({{kStringsFile, FileRole::StringsFile, Error{"It is short."}, {}, 0, 0},
                    {kSource, FileRole::Unknown, Error{"It changed."}, {}, 0, 0},
                    {FileUrl("/P/locked"), FileRole::Directory, Error{"It is locked."}, {}, 0, 0}});
  ASSERT_EQ(report.files().size(), 3U);
  EXPECT_EQ(report.files()[0].role, FileRole::Source);
  EXPECT_EQ(report.files()[0].unread->sentence, "It changed.");
  EXPECT_EQ(report.files()[1].unread->sentence, "It is no text.");
  EXPECT_EQ(report.files()[2].file, FileUrl("/P/locked"));
  EXPECT_EQ(report.totals().unreadPlaces, 1U);
}

TEST(ScanReport, AddsUpTheFindingsOfAllFiles) {
  const FileUrl otherSource("/P/b.m");
  const FileUrl otherStringsFile("/P/fr.lproj/Localizable.strings");
  ScanReport report;
  report.add(ProjectFileUnread{kSource, {}});
  report.add(CallRejected{kSource, "x", CallRejection::NoKey});
  report.add(CallRejected{otherSource, "x", CallRejection::NoKey});
  report.add(CallRejected{otherSource, "x", CallRejection::NoComma});
  report.add(SourceUnread{FileUrl("/P/c.m"), {}});
  report.add(EntryRejected{kStringsFile, "x", 1});
  report.add(EntryRejected{otherStringsFile, "x", 1});
  report.add(EntryWithoutMatch{otherStringsFile, "k", 2});
  report.add(StringsFileUnread{FileUrl("/P/sv.lproj/Localizable.strings"), {}});
  const ScanTotals totals = report.totals();
  EXPECT_EQ(totals.unreadProjectFiles, 1U);
  EXPECT_EQ(totals.unreadSources, 1U);
  EXPECT_EQ(totals.unreadStringsFiles, 1U);
  EXPECT_EQ(totals.rejectedCalls, 3U);
  EXPECT_EQ(totals.rejectedCallsBy[static_cast<std::size_t>(CallRejection::NoKey)], 2U);
  EXPECT_EQ(totals.rejectedCallsBy[static_cast<std::size_t>(CallRejection::NoComma)], 1U);
  EXPECT_EQ(totals.rejectedEntries, 2U);
  EXPECT_EQ(totals.unmatchedEntries, 1U);
}

}  // namespace
}  // namespace glossmill
