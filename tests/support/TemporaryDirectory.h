#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/FileUrl.h"

namespace glossmill {

/// A real directory that goes away, with all that is in it, at the end of the test. Names are relative to it.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "glossmill-test-XXXXXX").string();
    m_path = mkdtemp(pattern.data());
    std::filesystem::permissions(m_path, std::filesystem::perms(0755));
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  std::string path(std::string_view name = "") const { return (m_path / name).string(); }
  FileUrl url(std::string_view name = "") const { return FileUrl(path(name)); }

  void makeDirectory(std::string_view name) const { std::filesystem::create_directories(path(name)); }
  void makeLink(std::string_view name, std::string_view target) const {
    std::filesystem::create_symlink(target, path(name));
  }
  /// Makes the directories above as well.
  void makeFile(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
    std::ofstream(path(name), std::ios::binary) << bytes;
  }
  /// "" when there is no such file.
  std::string bytesOf(std::string_view name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path m_path;
};

}  // namespace glossmill
