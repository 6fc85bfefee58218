#include <gtest/gtest.h>
#include <stdio.h>

#include <algorithm>
#include <string>

#include "tests/MadeTree.h"
#include "tree/ProjectTree.h"
#include "tree/TreeWriter.h"

namespace glossmill::bench {

TEST(Floor, ReadsEverySourceAndStringsFileAndNothingElse) {
  const TemporaryDirectory directory;
  TreeWriter tree(directory.path());
  writeProject(tree, tinyShape());
  const FileTexts files = readTree(directory.path());
  const std::string read = joined(filesEndingIn(files, ".m")) + joined(filesEndingIn(files, ".strings"));
  const std::string command = std::string(GLOSSMILL_BENCH_FLOOR) + " '" + directory.path().string() + "'";
  FILE* const output = popen(command.c_str(), "r");
  ASSERT_NE(output, nullptr);
  unsigned long counted = 0;
  EXPECT_EQ(fscanf(output, "%lu", &counted), 1);
  EXPECT_EQ(pclose(output), 0);
  EXPECT_EQ(counted, static_cast<unsigned long>(std::count(read.begin(), read.end(), '"')));
}

}  // namespace glossmill::bench
