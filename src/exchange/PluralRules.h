#pragma once

#include <string_view>

namespace glossmill {

/// The plural rule of a language as headers of PO files have it, such as "nplurals=2; plural=(n != 1);". Empty for a
/// language whose rule is not known here. Takes a code such as "pt-BR" or "pt_BR".
std::string_view pluralRuleOf(std::string_view code);

}  // namespace glossmill
