#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tree/LanguageWords.h"
#include "tree/Random.h"

namespace glossmill::bench {

enum class StringsEncoding { utf8, utf16LittleEndianWithMark };

struct StringsShape {
  StringsEncoding encoding = StringsEncoding::utf8;
  std::size_t targetBytes = 0;  // on disk; comments grow towards it
};

// The bytes of a strings file with one translation for each of the key indexes, in their order.
std::string stringsText(const LanguageWords& language, const std::vector<std::size_t>& keyIndexes,
                        const StringsShape& shape, Random& random);

// UTF-16 little endian with its mark; `text` is well-formed UTF-8.
std::string utf16WithMark(std::string_view text);

}  // namespace glossmill::bench
