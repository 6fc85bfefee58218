#include "tree/TreeWriter.h"

#include <fstream>
#include <system_error>
#include <utility>

namespace glossmill::bench {

TreeWriter::TreeWriter(std::filesystem::path root) : m_root(std::move(root)) {
  std::error_code error;
  std::filesystem::create_directories(m_root, error);
  if (error) fail("cannot make", m_root);
  const bool empty = std::filesystem::is_empty(m_root, error);
  if (error || !empty) fail("not an empty directory:", m_root);
}

void TreeWriter::write(const std::string& path, std::string_view bytes) {
  const std::filesystem::path relative(path);
  makeDirectory(relative.parent_path());
  if (!m_error.empty()) return;
  std::ofstream file(m_root / relative, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) return fail("cannot write", m_root / relative);
  ++m_entries;
}

void TreeWriter::makeDirectory(const std::filesystem::path& path) {
  if (path.empty() || m_directories.contains(path)) return;
  makeDirectory(path.parent_path());
  if (!m_error.empty()) return;
  std::error_code error;
  std::filesystem::create_directory(m_root / path, error);
  if (error) return fail("cannot make", m_root / path);
  m_directories.insert(path);
  ++m_entries;
}

void TreeWriter::fail(const std::string& what, const std::filesystem::path& path) {
  if (m_error.empty()) m_error = what + " " + path.string();
}

}  // namespace glossmill::bench
