#include "model/RegionalLanguages.h"

#include <algorithm>
#include <iterator>

namespace glossmill {

namespace {

constexpr RegionalLanguage kLanguages[] = {
    {"ar-AE", "Arabic (United Arab Emirates)"},
    {"ar-EG", "Arabic (Egypt)"},
    {"ar-SA", "Arabic (Saudi Arabia)"},
    {"az-Cyrl", "Azerbaijani (Cyrillic)"},
    {"az-Latn", "Azerbaijani (Latin)"},
    {"bn-BD", "Bangla (Bangladesh)"},
    {"bn-IN", "Bangla (India)"},
    {"bs-Cyrl", "Bosnian (Cyrillic)"},
    {"bs-Latn", "Bosnian (Latin)"},
    {"ca-ES", "Catalan (Spain)"},
    {"de-AT", "German (Austria)"},
    {"de-CH", "German (Switzerland)"},
    {"de-DE", "German (Germany)"},
    {"en-AU", "English (Australia)"},
    {"en-CA", "English (Canada)"},
    {"en-GB", "English (United Kingdom)"},
    {"en-IE", "English (Ireland)"},
    {"en-IN", "English (India)"},
    {"en-NZ", "English (New Zealand)"},
    {"en-SG", "English (Singapore)"},
    {"en-US", "English (United States)"},
    {"en-ZA", "English (South Africa)"},
    {"es-419", "Spanish (Latin America)"},
    {"es-AR", "Spanish (Argentina)"},
    {"es-CL", "Spanish (Chile)"},
    {"es-CO", "Spanish (Colombia)"},
    {"es-ES", "Spanish (Spain)"},
    {"es-MX", "Spanish (Mexico)"},
    {"es-US", "Spanish (United States)"},
    {"fr-BE", "French (Belgium)"},
    {"fr-CA", "French (Canada)"},
    {"fr-CH", "French (Switzerland)"},
    {"fr-FR", "French (France)"},
    {"hi-Latn", "Hindi (Latin)"},
    {"it-CH", "Italian (Switzerland)"},
    {"it-IT", "Italian (Italy)"},
    {"kk-Cyrl", "Kazakh (Cyrillic)"},
    {"ks-Arab", "Kashmiri (Naskh)"},
    {"ks-Deva", "Kashmiri (Devanagari)"},
    {"mn-Cyrl", "Mongolian (Cyrillic)"},
    {"mn-Mong", "Mongolian (Mongolian)"},
    {"ms-Arab", "Malay (Arabic)"},
    {"nl-BE", "Dutch (Belgium)"},
    {"nl-NL", "Dutch (Netherlands)"},
    {"pa-Arab", "Punjabi (Naskh)"},
    {"pa-Guru", "Punjabi (Gurmukhi)"},
    {"pt-BR", "Portuguese (Brazil)"},
    {"pt-PT", "Portuguese (Portugal)"},
    {"ro-MD", "Romanian (Moldova)"},
    {"sd-Arab", "Sindhi (Arabic)"},
    {"sd-Deva", "Sindhi (Devanagari)"},
    {"sr-Cyrl", "Serbian (Cyrillic)"},
    {"sr-Latn", "Serbian (Latin)"},
    {"sv-FI", "Swedish (Finland)"},
    {"tg-Cyrl", "Tajik (Cyrillic)"},
    {"ug-Arab", "Uyghur (Arabic)"},
    {"ur-IN", "Urdu (India)"},
    {"ur-PK", "Urdu (Pakistan)"},
    {"uz-Arab", "Uzbek (Arabic)"},
    {"uz-Cyrl", "Uzbek (Cyrillic)"},
    {"uz-Latn", "Uzbek (Latin)"},
    {"vi-VN", "Vietnamese (Vietnam)"},
    {"yue-Hans", "Cantonese, Simplified"},
    {"yue-Hant", "Cantonese, Traditional"},
    {"zh-HK", "Chinese (Hong Kong)"},
    {"zh-Hans", "Chinese, Simplified"},
    {"zh-Hant", "Chinese, Traditional"},
    {"zh-Hant-HK", "Chinese, Traditional (Hong Kong)"},
    {"zh-Hant-TW", "Chinese, Traditional (Taiwan)"},
    {"zh-TW", "Chinese (Taiwan)"},
};

}  // namespace

std::span<const RegionalLanguage> regionalLanguages() {
  return kLanguages;
}

std::string_view nameOfRegionalLanguage(std::string_view code) {
  const auto found =
      std::lower_bound(std::begin(kLanguages), std::end(kLanguages), code,
                       [](const RegionalLanguage& it, std::string_view wanted) { return it.code < wanted; });
  return found != std::end(kLanguages) && found->code == code ? found->name : std::string_view();
}

}  // namespace glossmill
