#include "desktop/look/LanguageDirection.h"

#include <algorithm>
#include <array>

namespace glossmill {

namespace {

/// Languages that are written from right to left, by both of their codes.
constexpr std::array<std::string_view, 26> kRightToLeft = {
    "ar",  "ara", "arc", "ckb", "div", "dv",  "fa",  "fas", "he",  "heb", "iw",  "ji", "nqo",
    "per", "ps",  "pus", "sam", "sd",  "snd", "syr", "ug",  "uig", "ur",  "urd", "yi", "yid",
};

/// The part before the region or script of "ar-EG" or "ar_EG".
std::string_view baseCode(std::string_view code) {
  return code.substr(0, code.find_first_of("-_"));
}

}  // namespace

Qt::LayoutDirection languageDirection(std::string_view code) {
  const bool rightToLeft = std::find(kRightToLeft.begin(), kRightToLeft.end(), baseCode(code)) != kRightToLeft.end();
  return rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
}

}  // namespace glossmill
