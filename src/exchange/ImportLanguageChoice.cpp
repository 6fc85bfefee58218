#include "exchange/ImportLanguageChoice.h"

#include <algorithm>

namespace glossmill {

namespace {

char folded(char byte) {
  if (byte == '_') return '-';
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// The spelling itself comes first: a project may have both "pt-BR" and "pt_BR".
std::optional<LanguageCode> languageNamed(const LanguageArray& languages, std::string_view code) {
  std::optional<LanguageCode> found;
  for (const std::shared_ptr<Language>& language : languages) {
    if (language->iso639() == code) return language->code();
    if (!found && isSameLanguage(language->iso639(), code)) found = language->code();
  }
  return found;
}

std::string listOf(const std::vector<std::string>& codes) {
  std::string list;
  for (const std::string& code : codes) list += (list.empty() ? "" : ", ") + code;
  return list;
}

Result<ImportLanguageChoice> choiceOf(const std::vector<std::string>& ofFile, const Language& asked) {
  ImportLanguageChoice choice;
  choice.languages.resize(ofFile.size());
  std::size_t which = ofFile.size();
  for (std::size_t at = 0; at < ofFile.size(); ++at) {
    const bool isBetter = which == ofFile.size() || ofFile[at] == asked.iso639();
    if (isBetter && isSameLanguage(ofFile[at], asked.iso639())) which = at;
  }
  if (which == ofFile.size() && ofFile.size() != 1) {
    return Error{"The file has the languages " + listOf(ofFile) + ", and not " + asked.iso639() + "."};
  }
  const bool isOther = which == ofFile.size() && !ofFile.front().empty();
  if (isOther) choice.notes.push_back({ImportNote::Kind::OtherLanguage, ofFile.front()});
  choice.languages[which == ofFile.size() ? 0 : which] = asked.code();
  return choice;
}

}  // namespace

bool isSameLanguage(std::string_view code, std::string_view other) {
  return std::ranges::equal(code, other, {}, folded, folded);
}

Result<ImportLanguageChoice> importLanguages(const std::vector<std::string>& ofFile, const LanguageArray& ofProject,
                                             const Language* asked) {
  if (ofFile.empty()) return Error{"The file has no language."};
  if (asked) return choiceOf(ofFile, *asked);
  ImportLanguageChoice choice;
  bool hasAny = false;
  for (const std::string& code : ofFile) {
    if (code.empty()) return Error{"The file does not say its language."};
    choice.languages.push_back(languageNamed(ofProject, code));
    hasAny = hasAny || choice.languages.back();
    if (!choice.languages.back()) choice.notes.push_back({ImportNote::Kind::LackedLanguage, code});
  }
  if (!hasAny) return Error{"The project has no language " + listOf(ofFile) + "."};
  return choice;
}

}  // namespace glossmill
