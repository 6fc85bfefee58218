#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// A disk with one file, handed out at most `stepBytes` at a time, that can be made to fail.
class FakeFileReading : public FileReading {
 public:
  FakeFileReading(FileUrl file, std::string bytes) : m_file(std::move(file)), m_bytes(std::move(bytes)) {}

  void setStep(std::size_t bytes) { m_step = bytes; }
  /// Reading stops with an error once this many bytes were handed out.
  void failAfter(std::size_t bytes) { m_failAfter = bytes; }
  std::size_t readCount() const { return m_reads; }

  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override {
    if (!(file == m_file)) return Error{"There is no such file."};
    return std::unique_ptr<ByteReader>(std::make_unique<Reader>(*this));
  }
  Result<std::vector<DirectoryEntry>> list(const FileUrl&) override { return std::vector<DirectoryEntry>(); }
  EntryKind kindOf(const FileUrl& url) override { return url == m_file ? EntryKind::File : EntryKind::Missing; }
  std::optional<FileIdentity> identityOf(const FileUrl&) override { return std::nullopt; }

 private:
  class Reader : public ByteReader {
   public:
    explicit Reader(FakeFileReading& disk) : m_disk(disk) {}

    Result<std::size_t> read(std::span<char> buffer) override {
      ++m_disk.m_reads;
      if (m_disk.m_failAfter && m_at >= *m_disk.m_failAfter) return Error{"The disk was pulled out."};
      const std::string_view rest = std::string_view(m_disk.m_bytes).substr(m_at);
      const std::size_t count = std::min({buffer.size(), m_disk.m_step, rest.size()});
      std::copy_n(rest.begin(), count, buffer.begin());
      m_at += count;
      return count;
    }

   private:
    FakeFileReading& m_disk;
    std::size_t m_at = 0;
  };

  FileUrl m_file;
  std::string m_bytes;
  std::size_t m_step = std::string::npos;
  std::optional<std::size_t> m_failAfter;
  std::size_t m_reads = 0;
};

}  // namespace glossmill
