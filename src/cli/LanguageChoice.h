#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/ProjectSession.h"

namespace glossmill {

/// The project's languages with these codes, in its order; all of them for no codes. Nothing when the project lacks
/// one, which is explained on the console.
std::optional<LanguageArray> chosenLanguages(const ProjectSession& session, const std::vector<std::string>& codes);

/// A project that was opened for the sake of one language.
struct OpenedLanguage {
  ExitCode code = ExitCode::Fine;
  std::shared_ptr<Language> language;  ///< set when the code is Fine
};

/// Opens the project, finds the language in it and keeps the strings of these tables, or all for no ids. Anything but
/// Fine has been explained on the console.
OpenedLanguage openLanguage(ProjectSession& session, const ProjectChoice& choice, const std::string& code,
                            const std::vector<std::string>& tables = {});

}  // namespace glossmill
