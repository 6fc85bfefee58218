#pragma once

#include <sys/stat.h>

#include <string>

#include "host/FileDescriptor.h"
#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

/// A directory that was opened once: what is done through it happens in this very directory, whatever becomes of the
/// names and links that led to it.
class OpenedDirectory {
 public:
  static Result<OpenedDirectory> open(const FileUrl& url);

  /// True when this directory is `above` or lies below it.
  Result<bool> isWithin(const FileUrl& above) const;
  int number() const { return m_descriptor.number(); }
  const FileUrl& url() const { return m_url; }
  /// Makes new and removed names survive a power cut. Some file systems cannot; nothing is said then.
  void flush() const;

 private:
  OpenedDirectory(FileUrl url, FileDescriptor descriptor)
      : m_url(std::move(url)), m_descriptor(std::move(descriptor)) {}

  FileUrl m_url;
  FileDescriptor m_descriptor;
};

/// The directory at `url`; an error of kind Outside, which names `file`, when it does not lie within `within`. An empty
/// `within` allows any.
Result<OpenedDirectory> openWithin(const FileUrl& url, const FileUrl& within, const FileUrl& file);

}  // namespace glossmill
