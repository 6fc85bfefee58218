#include "text/PluralCategories.h"

#include <algorithm>
#include <array>
#include <string>

namespace glossmill {

namespace {

constexpr std::array<std::string_view, 6> kCategories = {"zero", "one", "two", "few", "many", "other"};

/// One letter a category: z, o, t, f, m; every language has other.
struct Group {
  std::string_view letters;
  std::string_view languages;  ///< with a blank around each
};

constexpr Group kGroups[] = {
    {"",
     " bm bo dz hnj id ig ii in ja jbo jv jw kde kea km ko lkt lo ms my nqo osa root sah ses sg su th to tpi vi wo "
     "yo yue zh "},
    {"o",
     " ab af ak am an as asa ast az bal bem bez bg bho bn brx ca ce ceb cgg chr ckb csw da de doi dv ee el en eo es et "
     "eu fa ff fi fil fo fr fur fy gl gsw gu guw ha haw hi hu hy ia io is it ji jgo jmc ka kab kaj kcg kk kkj kl "
     "kn ks ksb ku ky lb lg lij ln mas mg mgo mk ml mn mr nah nb nd ne nl nn nnh no nr nso ny nyn om or os pa pap "
     "pcm ps pt rm rof rwk saq sc scn sd sdh seh si sn so sq ss ssy st sv sw syr ta te teo ti tig tk tl tn tr ts "
     "tzm ug ur uz ve vec vo vun wa wae xh xog yi zu "},
    {"ot", " he iu iw naq sat se sma smi smj smn sms "},
    {"of", " bs cs hr lt mo ro sh shi sk sr "},
    {"otf", " br dsb gd gv hsb sl "},
    {"ofm", " be pl ru uk "},
    {"zo", " lag ksh lv prg blo "},
    {"otfm", " ga mt "},
    {"zotfm", " ar ars cy kw "},
};

/// For fractions or millions only.
constexpr std::string_view kRareMany = " br ca cs es fr gv it lld lt pt scn sk vec ";

bool isListed(std::string_view languages, std::string_view language) {
  return languages.find(" " + std::string(language) + " ") != std::string_view::npos;
}

std::string_view withoutRegion(std::string_view language) {
  return language.substr(0, language.find_first_of("-_"));
}

std::string_view lettersOf(std::string_view language) {
  const auto* const found = std::find_if(std::begin(kGroups), std::end(kGroups), [language](const Group& group) {
    return isListed(group.languages, language);
  });
  return found == std::end(kGroups) ? std::string_view("?") : found->letters;
}

}  // namespace

bool isPluralCategory(std::string_view name) {
  return std::find(kCategories.begin(), kCategories.end(), name) != kCategories.end();
}

std::vector<std::string_view> pluralCategories(std::string_view language) {
  const std::string_view letters = lettersOf(withoutRegion(language));
  std::vector<std::string_view> categories;
  if (letters == "?") return categories;
  for (const std::string_view category : kCategories) {
    const bool isOther = category == kCategories.back();
    if (isOther || letters.find(category.front()) != std::string_view::npos) categories.push_back(category);
  }
  return categories;
}

bool mayHavePluralCategory(std::string_view language, std::string_view category) {
  if (category == "zero") return true;
  if (category == "many" && isListed(kRareMany, withoutRegion(language))) return true;
  const std::vector<std::string_view> categories = pluralCategories(language);
  return categories.empty() || std::find(categories.begin(), categories.end(), category) != categories.end();
}

}  // namespace glossmill
