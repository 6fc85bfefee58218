#pragma once

#include <cstddef>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "cli/Console.h"

namespace glossmill {

using Json = nlohmann::ordered_json;

/// The value on one line, with what JsonWriter says of characters.
std::string compactJson(const Json& value);
/// The same over several lines, for people to look at, with a line feed at the end.
std::string prettyJson(const Json& value);

/// Prints one JSON object member by member, so that a large project is never held as a document. What is not valid
/// UTF-8, as the name of a file may be, gets U+FFFD; control characters of U+007F to U+009F are escaped too.
class JsonWriter {
 public:
  /// Gets the text in pieces.
  using Sink = std::function<void(std::string_view)>;

  explicit JsonWriter(Sink sink) : m_sink(std::move(sink)) {}
  /// On standard output; the console outlives the writer.
  explicit JsonWriter(Console& console) : JsonWriter([&console](std::string_view text) { console.data(text); }) {}

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

  Sink m_sink;
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
