#pragma once

namespace glossmill {

/// One visitor of several functions, one for each alternative of a variant.
template <typename... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

}  // namespace glossmill
