#pragma once

#include <string>

#include "cli/ProjectSession.h"

namespace glossmill {

/// The languages of the open project, one a line with what is translated and what is missing, and a line of totals.
std::string languageTable(const ProjectSession& session, const LanguageArray& languages);

}  // namespace glossmill
