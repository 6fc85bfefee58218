#pragma once

#include <Qt>
#include <string_view>

namespace glossmill {

/// Which way a language with this code is written; left to right when the code is unknown.
Qt::LayoutDirection languageDirection(std::string_view code);

}  // namespace glossmill
