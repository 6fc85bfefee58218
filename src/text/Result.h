#pragma once

#include <string>
#include <utility>
#include <variant>

namespace glossmill {

/// What a caller may want to treat in a way of its own.
enum class ErrorKind {
  Other,
  Outside,      ///< it lies where it must not be touched
  Undecodable,  ///< it was read, but is no text
};

/// Why something could not be done: one sentence for a person, without a final line feed.
struct Error {
  std::string sentence;
  ErrorKind kind = ErrorKind::Other;
};

/// A value, or the error that stands in its place.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : m_state(std::move(value)) {}
  Result(Error error) : m_state(std::move(error)) {}

  bool ok() const { return std::holds_alternative<T>(m_state); }
  explicit operator bool() const { return ok(); }

  /// Only when ok().
  T& value() { return std::get<T>(m_state); }
  const T& value() const { return std::get<T>(m_state); }
  /// Only when not ok().
  const Error& error() const { return std::get<Error>(m_state); }

 private:
  std::variant<T, Error> m_state;
};

/// Success without a value.
struct Done {};

using Outcome = Result<Done>;

}  // namespace glossmill
