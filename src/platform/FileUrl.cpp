#include "platform/FileUrl.h"

#include <algorithm>
#include <cctype>

#include "text/PercentForm.h"

namespace glossmill {

namespace {

constexpr std::string_view kScheme = "file://";

bool isAlphanumeric(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
}

bool standsAsItIs(char byte) {
  constexpr std::string_view kPlain = "/-._~!$&'()*+,=:@";
  return isAlphanumeric(byte) || kPlain.find(byte) != std::string_view::npos;
}

/// The value of a hexadecimal digit, 16 for anything else.
unsigned hexValue(char digit) {
  if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
  if (digit >= 'a' && digit <= 'f') return static_cast<unsigned>(digit - 'a') + 10;
  if (digit >= 'A' && digit <= 'F') return static_cast<unsigned>(digit - 'A') + 10;
  return 16;
}

/// Takes one byte of a URL's path off `rest` and appends what it stands for; false when it cannot stand in a URL.
bool takeUrlByte(std::string_view& rest, std::string& path) {
  if (rest.front() != '%') {
    if (!standsAsItIs(rest.front()) && rest.front() != ';') return false;
    path.push_back(rest.front());
    rest.remove_prefix(1);
    return true;
  }
  if (rest.size() < 3) return false;
  const unsigned value = hexValue(rest[1]) * 16 + hexValue(rest[2]);
  if (hexValue(rest[1]) > 15 || hexValue(rest[2]) > 15 || value == 0) return false;
  path.push_back(static_cast<char>(value));
  rest.remove_prefix(3);
  return true;
}

}  // namespace

FileUrl::FileUrl(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  m_path = std::make_shared<const std::string>(path);
}

FileUrl FileUrl::fromText(std::string_view text) {
  if (text.starts_with(kScheme)) text.remove_prefix(kScheme.size());
  if (!text.starts_with('/')) return {};
  std::string path;
  while (!text.empty()) {
    if (!takeUrlByte(text, path)) return {};
  }
  return FileUrl(path);
}

const std::string& FileUrl::path() const {
  static const std::string kNone;
  return m_path ? *m_path : kNone;
}

std::string FileUrl::text() const {
  return empty() ? std::string() : std::string(kScheme) + percentForm(path());
}

std::string_view FileUrl::lastPathComponent() const {
  const std::string_view whole = path();
  if (whole == "/") return whole;
  return whole.substr(whole.rfind('/') + 1);
}

std::string_view extensionOfName(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return {};
  return name.substr(dot + 1);
}

std::string_view FileUrl::pathExtension() const {
  return extensionOfName(lastPathComponent());
}

std::string_view FileUrl::lastPathComponentWithoutExtension() const {
  std::string_view name = lastPathComponent();
  const std::string_view extension = extensionOfName(name);
  if (!extension.empty()) name.remove_suffix(extension.size() + 1);
  return name;
}

FileUrl FileUrl::appending(std::string_view component) const {
  std::string joined = path();
  if (!joined.ends_with('/')) joined += '/';
  joined += component;
  return FileUrl(joined);
}

FileUrl FileUrl::parent() const {
  const std::size_t slash = path().rfind('/');
  if (slash == std::string::npos || slash == 0) return FileUrl("/");
  return FileUrl(std::string_view(path()).substr(0, slash));
}

}  // namespace glossmill
