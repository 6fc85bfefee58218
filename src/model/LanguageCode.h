#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace glossmill {

/// A language code such as "de" or "pt-BR" as a small number: equal texts have equal numbers for the life of the
/// program. Making one and asking for its text may happen on any thread.
class LanguageCode {
 public:
  LanguageCode() : LanguageCode(std::string_view()) {}
  explicit LanguageCode(std::string_view text);

  const std::string& text() const;
  std::uint32_t number() const { return m_number; }
  static LanguageCode fromNumber(std::uint32_t number) { return LanguageCode(number); }

  bool operator==(const LanguageCode&) const = default;

 private:
  explicit LanguageCode(std::uint32_t number) : m_number(number) {}

  std::uint32_t m_number;
};

}  // namespace glossmill
