#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/ImportPlan.h"
#include "model/Language.h"
#include "text/Result.h"

namespace glossmill {

/// Which languages of a project the languages of a file go to.
struct ImportLanguageChoice {
  ImportLanguages languages;
  std::vector<ImportNote> notes;
};

/// Whether two codes name one language: "pt-BR" and "pt_br" do.
bool isSameLanguage(std::string_view code, std::string_view other);

/// `asked` is the language that somebody asked for, null when nobody did. It is the one of a file's that it names, or
/// the only one that the file has. An error when the file leaves open which one is meant, or has none of the
/// project's.
Result<ImportLanguageChoice> importLanguages(const std::vector<std::string>& ofFile, const LanguageArray& ofProject,
                                             const Language* asked);

}  // namespace glossmill
