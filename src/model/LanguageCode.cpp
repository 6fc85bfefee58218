#include "model/LanguageCode.h"

#include <deque>
#include <map>
#include <mutex>

namespace glossmill {

namespace {

class CodeTable {
 public:
  std::uint32_t numberOf(std::string_view text) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_numbers.find(text);
    if (found != m_numbers.end()) return found->second;
    const auto number = static_cast<std::uint32_t>(m_texts.size());
    m_numbers.emplace(m_texts.emplace_back(text), number);
    return number;
  }

  const std::string& textOf(std::uint32_t number) {
    const std::lock_guard lock(m_mutex);
    return m_texts[number];
  }

 private:
  std::mutex m_mutex;
  std::deque<std::string> m_texts;  ///< a deque, so that texts stay where they are
  std::map<std::string_view, std::uint32_t> m_numbers;
};

CodeTable& codeTable() {
  static CodeTable table;
  return table;
}

}  // namespace

LanguageCode::LanguageCode(std::string_view text) : m_number(codeTable().numberOf(text)) {}

const std::string& LanguageCode::text() const {
  return codeTable().textOf(m_number);
}

}  // namespace glossmill
