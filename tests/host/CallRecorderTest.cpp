#include "support/CallRecorder.h"
#include "support/RecordingHost.h"

namespace glossmill {
namespace {

TEST(CallRecorder, KeepsEachCallOnALineOfItsOwn) {
  CallRecorder calls;
  calls.add("log", "two\nlines");
  calls.add("window", "show");
  EXPECT_EQ(calls.lines(), (Lines{"log: two\\nlines", "window: show"}));
  EXPECT_EQ(calls.linesOf({"win", "other"}), Lines{"window: show"});
}

TEST(CallRecorder, DoesWhatIsWantedAtALineOnce) {
  CallRecorder calls;
  int done = 0;
  calls.when("window: show", [&done] { ++done; });
  calls.add("window", "order out");
  EXPECT_EQ(done, 0);
  calls.add("window", "show");
  calls.add("window", "show");
  EXPECT_EQ(done, 1);
}

TEST(CallRecorder, TellsOnlyWhereTheLinesDiffer) {
  const Lines lines = {"0", "1", "2", "3", "4", "seen", "6", "7", "8", "9"};
  const Lines expected = {"0", "1", "2", "3", "4", "wanted", "too", "6", "7", "8", "9"};
  EXPECT_TRUE(sameLines(lines, lines));
  const testing::AssertionResult differ = sameLines(lines, expected);
  EXPECT_FALSE(differ);
  EXPECT_STREQ(differ.message(),
               "line 6, expected (-) and seen (+):\n  2\n  3\n  4\n- wanted\n- too\n+ seen\n  6\n  7\n  8\n");
}

TEST(CallRecorder, TellsOfALineThatIsMissingAtTheEnd) {
  const testing::AssertionResult differ = sameLines({"same", "same"}, {"same", "same", "same"});
  EXPECT_FALSE(differ);
  EXPECT_STREQ(differ.message(), "line 3, expected (-) and seen (+):\n  same\n  same\n- same\n");
}

TEST(RecordingHost, HoldsABackgroundJobBackUntilTheMainThreadIsIdle) {
  RecordingHost recording;
  bool ran = false;
  recording.parts().threads.performInBackground([&] {
    ran = true;
    recording.parts().systemLog.write("from the job");
  });
  EXPECT_FALSE(ran);
  recording.calls.add("test", "idle");
  recording.runUntilIdle();
  EXPECT_TRUE(ran);
  EXPECT_EQ(recording.calls.lines(), (Lines{"background: start a job", "test: idle", "system log: from the job"}));
}

TEST(RecordingHost, PassesCallsOn) {
  RecordingHost recording;
  recording.parts().defaults.setInteger("Depth", 3);
  recording.parts().recentMenu.addItem({"/x/App", 0, nullptr, false});
  EXPECT_EQ(recording.host.defaults.integerForKey("Depth"), 3);
  EXPECT_EQ(recording.host.recentMenu.items().size(), 1U);
  EXPECT_EQ(recording.calls.lines(), (Lines{"defaults: Depth = 3", "recent menu: add \"/x/App\""}));
}

}  // namespace
}  // namespace glossmill
