#pragma once

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace glossmill::bench {

// Writes files below one directory and counts what it made. The first failure is kept; nothing is written after it.
class TreeWriter {
 public:
  // `root` is made when it does not exist; an existing one must be empty.
  explicit TreeWriter(std::filesystem::path root);

  // `path` is relative to the root, "/" between its parts; missing directories on the way are made.
  void write(const std::string& path, std::string_view bytes);

  // Directories and files below the root.
  std::size_t entries() const { return m_entries; }

  // Empty while everything went well.
  const std::string& error() const { return m_error; }

 private:
  void makeDirectory(const std::filesystem::path& path);
  void fail(const std::string& what, const std::filesystem::path& path);

  std::filesystem::path m_root;
  std::set<std::filesystem::path> m_directories;
  std::size_t m_entries = 0;
  std::string m_error;
};

}  // namespace glossmill::bench
