#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/DecodedFile.h"
#include "xcode/StringsEntry.h"
#include "xcode/SyntaxError.h"

namespace glossmill {

/// A strings file: its text as it is, and where its entries stand in it. Nothing of it ever changes: an edit gives new
/// bytes (StringsEdits.h). docs/xcode/strings-file.md says what is taken.
class StringsDocument {
 public:
  /// A key that stands more than once. The last entry counts.
  struct RepeatedKey {
    std::string key;
    std::vector<std::size_t> lines;  ///< of all its entries
    bool operator==(const RepeatedKey&) const = default;
  };

  /// `otherwise` is what the project says of the encoding. Empty bytes are a file without entries.
  explicit StringsDocument(std::string_view bytes, std::optional<FileEncoding> otherwise = std::nullopt);
  /// A file without entries that takes encoding and line ends from another.
  static StringsDocument emptyLike(const StringsDocument& model);
  /// A file without entries in UTF-8, whose lines are to end in this way.
  static StringsDocument emptyWith(std::string_view lineEnd);
  /// The same file with another text.
  static StringsDocument ofText(std::string text, const StringsDocument& model);

  /// Why the file must not be written. What stands in front of it was read.
  const std::optional<SyntaxError>& error() const { return m_error; }

  const std::string& text() const { return m_file.text; }
  const DecodedFile& file() const { return m_file; }
  const StringsBody& body() const { return m_body; }
  /// "\n", "\r\n" or "\r".
  std::string_view lineEnd() const { return m_lineEnd; }

  /// In the order of the text, repeated keys too.
  const std::vector<StringsEntry>& entries() const { return m_entries; }
  std::string_view spelled(const StringsText& text) const;
  std::string keyOf(const StringsEntry& entry) const;
  std::string valueOf(const StringsEntry& entry) const;

  /// In the order of their last entries.
  std::vector<RepeatedKey> repeatedKeys() const;

 private:
  StringsDocument() = default;

  void decode(std::string_view bytes, std::optional<FileEncoding> otherwise);
  void readEntries();
  template <typename Reader>
  void readWith(Reader reader);
  std::string read(const StringsText& text) const;

  DecodedFile m_file;
  std::string m_lineEnd = "\n";
  StringsBody m_body;
  std::vector<StringsEntry> m_entries;
  std::optional<SyntaxError> m_error;
};

}  // namespace glossmill
