#include "exchange/PluralRules.h"

#include <algorithm>
#include <span>

namespace glossmill {

namespace {

constexpr std::string_view kNone[] = {"ja", "ko", "zh", "th", "vi",  "id", "ms",
                                      "lo", "km", "my", "ka", "yue", "wo", "jv"};
constexpr std::string_view kOneOrMore[] = {
    "en", "de", "nl", "sv", "da", "nb", "nn", "no", "fi", "et", "el", "he", "iw", "hu", "it", "es",  "ca",
    "gl", "eu", "pt", "bg", "sq", "af", "sw", "ta", "te", "ml", "mr", "ne", "ur", "az", "eo", "fo",  "fy",
    "lb", "mn", "kk", "uz", "ky", "tk", "so", "zu", "xh", "kl", "kn", "or", "ps", "sd", "rm", "ast", "tr"};
constexpr std::string_view kZeroIsOne[] = {"fr", "oc", "br", "hy", "fa", "hi",  "bn",
                                           "gu", "pa", "am", "mg", "ln", "fil", "tl"};
constexpr std::string_view kSlavic[] = {"ru", "uk", "be", "sr", "hr", "bs"};
constexpr std::string_view kCzech[] = {"cs", "sk"};
constexpr std::string_view kPolish[] = {"pl"};
constexpr std::string_view kLithuanian[] = {"lt"};
constexpr std::string_view kLatvian[] = {"lv"};
constexpr std::string_view kRomanian[] = {"ro", "mo"};
constexpr std::string_view kSlovenian[] = {"sl"};
constexpr std::string_view kArabic[] = {"ar"};
constexpr std::string_view kMacedonian[] = {"mk", "is"};
constexpr std::string_view kGaelic[] = {"ga"};
constexpr std::string_view kWelsh[] = {"cy"};
constexpr std::string_view kMaltese[] = {"mt"};

struct Rule {
  std::span<const std::string_view> languages;
  std::string_view text;
};

constexpr Rule kRules[] = {
    {kNone, "nplurals=1; plural=0;"},
    {kOneOrMore, "nplurals=2; plural=(n != 1);"},
    {kZeroIsOne, "nplurals=2; plural=(n > 1);"},
    {kSlavic, "nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2);"},
    {kCzech, "nplurals=3; plural=(n==1) ? 0 : (n>=2 && n<=4) ? 1 : 2;"},
    {kPolish, "nplurals=3; plural=(n==1 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2);"},
    {kLithuanian, "nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n%10>=2 && (n%100<10 || n%100>=20) ? 1 : 2);"},
    {kLatvian, "nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n != 0 ? 1 : 2);"},
    {kRomanian, "nplurals=3; plural=(n==1 ? 0 : (n==0 || (n%100 > 0 && n%100 < 20)) ? 1 : 2);"},
    {kSlovenian, "nplurals=4; plural=(n%100==1 ? 0 : n%100==2 ? 1 : n%100==3 || n%100==4 ? 2 : 3);"},
    {kArabic, "nplurals=6; plural=(n==0 ? 0 : n==1 ? 1 : n==2 ? 2 : n%100>=3 && n%100<=10 ? 3 : n%100>=11 ? 4 : 5);"},
    {kMacedonian, "nplurals=2; plural=(n%10!=1 || n%100==11);"},
    {kGaelic, "nplurals=5; plural=(n==1 ? 0 : n==2 ? 1 : n<7 ? 2 : n<11 ? 3 : 4);"},
    {kWelsh, "nplurals=4; plural=(n==1 ? 0 : n==2 ? 1 : (n != 8 && n != 11) ? 2 : 3);"},
    {kMaltese, "nplurals=4; plural=(n==1 ? 0 : n==0 || (n%100>1 && n%100<11) ? 1 : (n%100>10 && n%100<20) ? 2 : 3);"},
};

}  // namespace

std::string_view pluralRuleOf(std::string_view code) {
  if (code == "pt-BR" || code == "pt_BR") return "nplurals=2; plural=(n > 1);";
  const std::string_view base = code.substr(0, code.find_first_of("-_"));
  for (const Rule& rule : kRules) {
    if (std::ranges::find(rule.languages, base) != rule.languages.end()) return rule.text;
  }
  return {};
}

}  // namespace glossmill
