#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/Console.h"

namespace glossmill {

using Json = nlohmann::ordered_json;

/// Prints one JSON object member by member, so that a large project is never held as a document. What is not valid
/// UTF-8, as the name of a file may be, gets U+FFFD; control characters of U+007F to U+009F are escaped too.
class JsonWriter {
 public:
  explicit JsonWriter(Console& console) : m_console(console) {}

  void member(std::string_view name, const Json& value);
  /// An array with a line for each of the `count` values that `valueAt(index)` gives.
  template <typename ValueAt>
  void list(std::string_view name, std::size_t count, ValueAt valueAt);
  void end();

 private:
  void name(std::string_view name);
  void value(const Json& value);
  void value(std::string_view text);
  void longText(std::string_view text);
  void handOver();

  Console& m_console;
  std::string m_text;
  bool m_isFirst = true;
};

template <typename ValueAt>
void JsonWriter::list(std::string_view listName, std::size_t count, ValueAt valueAt) {
  name(listName);
  m_text += '[';
  for (std::size_t index = 0; index < count; ++index) {
    m_text += index == 0 ? "\n    " : ",\n    ";
    value(valueAt(index));
  }
  m_text += count == 0 ? "]" : "\n  ]";
}

}  // namespace glossmill
