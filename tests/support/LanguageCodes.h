#pragma once

#include "model/LanguageCode.h"

namespace glossmill {

inline const LanguageCode kGerman("de");
inline const LanguageCode kFrench("fr");

}  // namespace glossmill
