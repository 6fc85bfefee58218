#include <gtest/gtest.h>

#include "checks/MalformedCheck.h"
#include "checks/NotLiteralCheck.h"

namespace glossmill {
namespace {

Problem problemOf(std::string_view kind) {
  return {FileUrl("/p/a"), 1, 2, kind, "It is so"};
}

TEST(MalformedCheck, TakesProblemsOfReading) {
  for (const std::string_view kind :
       {"project-file", "source-unread", "strings-unread", "strings-syntax", "line-rejected", "place-unread"}) {
    ASSERT_TRUE(malformedFinding(problemOf(kind))) << kind;
    EXPECT_EQ(malformedFinding(problemOf(kind))->what, "It is so");
    EXPECT_FALSE(notLiteralFinding(problemOf(kind))) << kind;
  }
}

TEST(NotLiteralCheck, TakesCallsThatWereNotTaken) {
  for (const std::string_view kind : {"key-missing", "key-not-literal", "table-not-literal", "interpolation",
                                      "malformed-literal", "call-not-closed", "call-rejected"}) {
    ASSERT_TRUE(notLiteralFinding(problemOf(kind))) << kind;
    EXPECT_EQ(notLiteralFinding(problemOf(kind))->severity, Severity::Info);
    EXPECT_FALSE(malformedFinding(problemOf(kind))) << kind;
  }
}

TEST(ProblemChecks, PassOverWhatIsNoMistakeOfATranslation) {
  for (const std::string_view kind : {"file-missing", "package-missing", "not-read", "repeated-key", ""}) {
    EXPECT_FALSE(malformedFinding(problemOf(kind))) << kind;
    EXPECT_FALSE(notLiteralFinding(problemOf(kind))) << kind;
  }
}

}  // namespace
}  // namespace glossmill
