#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"

namespace glossmill {

/// What a person typed as a language code, in the usual spelling: "PT_br" gives "pt-BR", "ZH-hans" gives "zh-Hans".
/// It has to be a language of two or three letters, then perhaps a script of four letters, a region of two letters or
/// three digits, variants, and what follows an "x"; whether there is such a language is not looked at. The error says
/// in one sentence what is wrong.
Result<std::string> languageTagOf(std::string_view typed);

/// The first of the codes that means the same language as this one: in other spelling, by a name of former times
/// (English for en), or by a code that another one has replaced (iw for he, zh-CN for zh-Hans).
std::optional<std::size_t> sameLanguageAmong(const std::vector<std::string>& codes, std::string_view code);

}  // namespace glossmill
