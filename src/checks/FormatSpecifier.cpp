#include "checks/FormatSpecifier.h"

#include <optional>

namespace glossmill {

namespace {

struct Conversion {
  char letter;
  ArgumentKind kind;
  ArgumentSize size = ArgumentSize::Plain;
};

constexpr Conversion kConversions[] = {
    {'@', ArgumentKind::Object},
    {'d', ArgumentKind::Signed},
    {'D', ArgumentKind::Signed, ArgumentSize::Long},
    {'i', ArgumentKind::Signed},
    {'u', ArgumentKind::Unsigned},
    {'U', ArgumentKind::Unsigned, ArgumentSize::Long},
    {'x', ArgumentKind::Hexadecimal},
    {'X', ArgumentKind::Hexadecimal},
    {'o', ArgumentKind::Octal},
    {'O', ArgumentKind::Octal, ArgumentSize::Long},
    {'p', ArgumentKind::Pointer},
    {'c', ArgumentKind::Character},
    {'C', ArgumentKind::Utf16Unit},
    {'s', ArgumentKind::CString},
    {'S', ArgumentKind::Utf16String},
    {'f', ArgumentKind::Floating},
    {'F', ArgumentKind::Floating},
    {'e', ArgumentKind::Floating},
    {'E', ArgumentKind::Floating},
    {'g', ArgumentKind::Floating},
    {'G', ArgumentKind::Floating},
    {'a', ArgumentKind::Floating},
    {'A', ArgumentKind::Floating},
    {'n', ArgumentKind::CountPointer},
};

struct SizePrefix {
  std::string_view letters;
  ArgumentSize size;
};

/// The longer ones first.
constexpr SizePrefix kSizePrefixes[] = {
    {"hh", ArgumentSize::Char}, {"h", ArgumentSize::Short},      {"ll", ArgumentSize::LongLong},
    {"l", ArgumentSize::Long},  {"q", ArgumentSize::LongLong},   {"L", ArgumentSize::LongLong},
    {"z", ArgumentSize::Size},  {"t", ArgumentSize::Difference}, {"j", ArgumentSize::Max},
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Reads one text from its front to its end.
class FormatReader {
 public:
  explicit FormatReader(std::string_view text) : m_text(text) {}

  FormatReading read() {
    for (m_at = m_text.find('%'); m_at < m_text.size(); m_at = m_text.find('%', m_at)) readSign();
    return std::move(m_reading);
  }

 private:
  /// An argument that is taken: the one of this position, or without one the next.
  struct Taken {
    std::optional<std::size_t> position;
    ArgumentKind kind = ArgumentKind::Signed;
    ArgumentSize size = ArgumentSize::Plain;
    std::string_view variable;
  };

  void readSign() {
    m_start = m_at++;
    m_taken.clear();
    if (skip('%')) {
      m_reading.hasDoubled = true;
    } else if (readSpecifier()) {
      useTaken();
    } else {
      m_reading.strays.push_back({{m_start, m_at - m_start}});
    }
  }

  bool readSpecifier() {
    const std::optional<std::size_t> position = takePosition();
    if (takeVariable(position)) return true;
    while (m_at < m_text.size() && std::string_view("-+0#'").find(m_text[m_at]) != std::string_view::npos) ++m_at;
    takeCount();
    if (skip('.')) takeCount();
    return takeConversion(position, takeSize());
  }

  bool skip(char c) {
    if (m_at == m_text.size() || m_text[m_at] != c) return false;
    ++m_at;
    return true;
  }

  std::string_view takeDigits() {
    const std::size_t begin = m_at;
    while (m_at < m_text.size() && isDigit(m_text[m_at])) ++m_at;
    return m_text.substr(begin, m_at - begin);
  }

  /// "2$"; without the sign the digits are left for the width.
  std::optional<std::size_t> takePosition() {
    constexpr std::size_t kMostDigits = 4;
    const std::size_t begin = m_at;
    const std::string_view digits = takeDigits();
    std::size_t value = 0;
    for (const char digit : digits.substr(0, kMostDigits)) value = value * 10 + static_cast<std::size_t>(digit - '0');
    if (value != 0 && digits.size() <= kMostDigits && skip('$')) return value;
    m_at = begin;
    return std::nullopt;
  }

  /// "#@name@"
  bool takeVariable(std::optional<std::size_t> position) {
    constexpr std::string_view kBegin = "#@";
    if (!m_text.substr(m_at).starts_with(kBegin)) return false;
    const std::size_t name = m_at + kBegin.size();
    const std::size_t end = m_text.find_first_of("@%\n", name);
    if (end == std::string_view::npos || m_text[end] != '@' || end == name) return false;
    m_taken.push_back({position, ArgumentKind::Variable, ArgumentSize::Plain, m_text.substr(name, end - name)});
    m_at = end + 1;
    return true;
  }

  /// A width or a precision: digits, or an argument of its own.
  void takeCount() {
    if (skip('*')) {
      m_taken.push_back({takePosition(), ArgumentKind::Signed, ArgumentSize::Plain, {}});
    } else {
      takeDigits();
    }
  }

  ArgumentSize takeSize() {
    for (const SizePrefix& prefix : kSizePrefixes) {
      if (!m_text.substr(m_at).starts_with(prefix.letters)) continue;
      m_at += prefix.letters.size();
      return prefix.size;
    }
    return ArgumentSize::Plain;
  }

  bool takeConversion(std::optional<std::size_t> position, ArgumentSize size) {
    if (m_at == m_text.size()) return false;
    for (const Conversion& conversion : kConversions) {
      if (conversion.letter != m_text[m_at]) continue;
      ++m_at;
      m_taken.push_back({position, conversion.kind, size == ArgumentSize::Plain ? conversion.size : size, {}});
      return true;
    }
    return false;
  }

  void useTaken() {
    for (const Taken& taken : m_taken) {
      (taken.position ? m_reading.hasPositions : m_reading.hasSequential) = true;
      m_reading.uses.push_back({taken.position ? *taken.position : m_next++,
                                taken.kind,
                                taken.size,
                                taken.variable,
                                {m_start, m_at - m_start}});
    }
  }

  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_start = 0;  ///< of the sign that is being read
  std::size_t m_next = 1;   ///< argument that a specifier without a position takes
  std::vector<Taken> m_taken;
  FormatReading m_reading;
};

}  // namespace

FormatReading readFormat(std::string_view text) {
  return FormatReader(text).read();
}

}  // namespace glossmill
