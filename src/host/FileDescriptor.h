#pragma once

#include <unistd.h>

#include <utility>

namespace glossmill {

/// An open file descriptor that closes itself; below 0 there is none.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : m_number(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(m_number, other.m_number);
    return *this;
  }
  ~FileDescriptor() { close(); }

  explicit operator bool() const { return m_number >= 0; }
  int number() const { return m_number; }
  /// False, with errno set, when the system reports late that something was not written.
  bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

 private:
  int m_number;
};

}  // namespace glossmill
