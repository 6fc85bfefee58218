#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "xcode/StringsDocument.h"
#include "xcode/StringsKeys.h"

namespace glossmill {

/// Where a new entry goes.
struct StringsPlace {
  enum class Side { Behind, InFront, Alone };

  std::size_t key = 0;  ///< the place of the new key in the list that was given
  Side side = Side::Alone;
  std::size_t entry = 0;  ///< of the file; nothing for Alone, in a file without entries
};

/// A place for each key that the document lacks, in the order in which they follow one another: behind the key in front
/// of it in the development language's file, which may be null; else in order, where the file is sorted; else at the
/// end.
std::vector<StringsPlace> placesFor(const std::vector<std::string_view>& newKeys, const StringsDocument& document,
                                    const StringsKeys& keys, const StringsDocument* development);

}  // namespace glossmill
