#include "tests/MadeTree.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>

namespace glossmill::bench {

TemporaryDirectory::TemporaryDirectory() {
  std::string pattern = (std::filesystem::temp_directory_path() / "glossmill-bench-XXXXXX").string();
  if (mkdtemp(pattern.data()) != nullptr) m_path = pattern;
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  std::filesystem::remove_all(m_path, ignored);
}

FileTexts readTree(const std::filesystem::path& root) {
  FileTexts texts;
  for (const std::filesystem::directory_entry& entry : std::filesystem::recursive_directory_iterator(root)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    texts[entry.path().lexically_relative(root).string()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return texts;
}

FileTexts filesEndingIn(const FileTexts& files, const std::string& end) {
  FileTexts chosen;
  std::copy_if(files.begin(), files.end(), std::inserter(chosen, chosen.end()),
               [&](const auto& file) { return file.first.ends_with(end); });
  return chosen;
}

std::string joined(const FileTexts& files) {
  std::string text;
  for (const auto& [path, bytes] : files) text += bytes;
  return text;
}

std::size_t occurrences(const std::string& text, const std::string& word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) ++count;
  return count;
}

std::vector<std::string> matches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
    found.push_back((*match)[1].str());
  }
  return found;
}

std::vector<std::string> wellFormedKeys(const std::string& source) {
  return matches(source, R"re(NSLocalizedString\(@"([^"()]*)",\s+@"[^"()]*"\))re");
}

void expectNear(std::size_t actual, std::size_t wanted) {
  EXPECT_GE(actual, wanted * 95 / 100);
  EXPECT_LE(actual, wanted * 110 / 100);
}

}  // namespace glossmill::bench
