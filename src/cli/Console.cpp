#include "cli/Console.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "text/PrintableText.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostPending = 32 * 1024;
constexpr std::string_view kStartOfLine = "\r\x1B[K";
constexpr std::string_view kPlain = "\x1B[0m";

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : std::string_view();
}

bool isTerminal(int descriptor) {
  return isatty(descriptor) != 0 && environment("TERM") != "dumb";
}

bool wantsColor(int descriptor) {
  return isTerminal(descriptor) && environment("NO_COLOR").empty();
}

std::string_view colorCode(Paint paint) {
  switch (paint) {
    case Paint::Heading:
      return "\x1B[1m";
    case Paint::Good:
      return "\x1B[32m";
    case Paint::Gap:
      return "\x1B[33m";
    case Paint::Bad:
      return "\x1B[31m";
    case Paint::Plain:
      break;
  }
  return {};
}

void put(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

}  // namespace

Console::Console()
    : m_isOutputTerminal(isatty(STDOUT_FILENO) != 0),
      m_colorsOutput(wantsColor(STDOUT_FILENO)),
      m_colorsErrors(wantsColor(STDERR_FILENO)),
      m_showsProgress(isTerminal(STDERR_FILENO)) {}

void Console::data(std::string_view text) {
  flush();
  put(stdout, text);
}

void Console::foreignText(std::string_view text) {
  if (!m_isOutputTerminal) return data(text);
  std::string printable;
  appendPrintableText(printable, text);
  data(printable);
}

std::string Console::painted(Paint paint, std::string_view text) const {
  const std::string_view code = colorCode(paint);
  if (!m_colorsOutput || code.empty()) return std::string(text);
  return std::string(code).append(text).append(kPlain);
}

void Console::message(std::string_view text) {
  if (m_loudness != Loudness::Quiet) append("", text);
}

void Console::diagnostic(std::string_view text) {
  if (m_loudness == Loudness::Verbose) append("system log: ", text);
}

void Console::error(std::string_view text) {
  append(m_colorsErrors ? "\x1B[31mglossmill-cli:\x1B[0m " : "glossmill-cli: ", text);
  flush();
}

void Console::append(std::string_view prefix, std::string_view text) {
  const std::lock_guard lock(m_mutex);
  m_pending.append(prefix);
  appendPrintableText(m_pending, text);
  m_pending.push_back('\n');
  if (m_pending.size() >= kMostPending) write();
}

void Console::write() {
  hideProgress();
  put(stderr, m_pending);
  std::fflush(stderr);
  m_pending.clear();
}

void Console::showProgress(std::string_view text) {
  if (!m_showsProgress || isQuiet()) return;
  const std::lock_guard lock(m_mutex);
  write();
  m_progressShown = true;
  put(stderr, printableLine(text));
  std::fflush(stderr);
}

void Console::hideProgress() {
  if (m_progressShown) put(stderr, kStartOfLine);
  m_progressShown = false;
}

void Console::flush() {
  const std::lock_guard lock(m_mutex);
  write();
}

bool Console::finish() {
  flush();
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

}  // namespace glossmill
