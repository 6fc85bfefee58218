#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace glossmill {

/// The location of a file or directory: an absolute path in UTF-8 bytes, "/" between the parts, no final slash (but for
/// the root). Copies share their text. An empty FileUrl names nothing.
class FileUrl {
 public:
  FileUrl() = default;
  explicit FileUrl(std::string_view path);

  /// Reads the text of a URL, or a plain absolute path. Gives an empty FileUrl when `text` cannot be a URL text: a
  /// relative path, a blank, a control character or any other character that a URL may only hold in percent form.
  static FileUrl fromText(std::string_view text);

  bool empty() const { return !m_path || m_path->empty(); }
  const std::string& path() const;

  /// "file://" and the path; every byte but letters, digits and /-._~!$&'()*+,=:@ stands as %XX.
  std::string text() const;

  /// The views below point into the path and live as long as any copy of this FileUrl.
  std::string_view lastPathComponent() const;
  /// What follows the last dot of the last component, "" when there is no dot or nothing stands before it.
  std::string_view pathExtension() const;
  std::string_view lastPathComponentWithoutExtension() const;

  FileUrl appending(std::string_view component) const;
  /// The directory that holds this entry; the root's parent is the root.
  FileUrl parent() const;

  bool operator==(const FileUrl& other) const { return path() == other.path(); }

 private:
  std::shared_ptr<const std::string> m_path;
};

/// The extension of a file name, by the rule of FileUrl::pathExtension.
std::string_view extensionOfName(std::string_view name);

}  // namespace glossmill
