#include <gtest/gtest.h>

#include "platform/ReadBytes.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

TEST(ReadBytes, GivesAFileAsItIs) {
  InMemoryFiles files;
  const std::string rest(600'000, 'x');
  files.addFile("/a", std::string("\xFF\xFE\0b", 4) + rest);
  EXPECT_EQ(readBytes(files, FileUrl("/a")).value(), std::string("\xFF\xFE\0b", 4) + rest);
}

TEST(ReadBytes, AFileThatBreaksOffIsAnError) {
  InMemoryFiles files;
  files.addFile("/a", "boats");
  files.failReadingAfter("/a", 2, "The disk is gone.");
  EXPECT_EQ(readBytes(files, FileUrl("/a")).error().sentence, "The disk is gone.");
  EXPECT_FALSE(readBytes(files, FileUrl("/b")));
}

}  // namespace
}  // namespace glossmill
