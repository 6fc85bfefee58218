#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "model/ScanEvents.h"

namespace glossmill {

/// A call as the classic rules see it, and where its name stands.
struct ClassicCall {
  std::string_view key;  ///< of a call that was taken; a view of the source
  std::optional<CallRejection> rejection;
  std::uint32_t line = 0;    ///< from 1
  std::uint32_t column = 0;  ///< in UTF-16 units from 1
};

/// All calls of a source, in its order, by the scan's own reader.
std::vector<ClassicCall> classicCalls(std::string_view text);

/// Why a call was rejected, as a sentence.
std::string_view sentenceOf(CallRejection rejection);

}  // namespace glossmill
