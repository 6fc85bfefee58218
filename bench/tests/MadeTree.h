#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tree/TreeWriter.h"

namespace glossmill::bench {

// Bytes of files by their path below the tree.
using FileTexts = std::map<std::string, std::string>;

// An empty directory that goes away with all that was written into it.
class TemporaryDirectory {
 public:
  TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory();

  const std::filesystem::path& path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

FileTexts readTree(const std::filesystem::path& root);

FileTexts filesEndingIn(const FileTexts& files, const std::string& end);

// The bytes of all files, one after the other.
std::string joined(const FileTexts& files);

std::size_t occurrences(const std::string& text, const std::string& word);

// The first group of every match of the regular expression.
std::vector<std::string> matches(const std::string& text, const std::string& pattern);

// The keys of the calls that have a literal key and a literal comment.
std::vector<std::string> wellFormedKeys(const std::string& source);

void expectNear(std::size_t actual, std::size_t wanted);

template <typename Write, typename Argument>
FileTexts textsOf(Write write, Argument argument) {
  const TemporaryDirectory directory;
  TreeWriter tree(directory.path());
  write(tree, argument);
  EXPECT_EQ(tree.error(), "");
  return readTree(directory.path());
}

}  // namespace glossmill::bench
