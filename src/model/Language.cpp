#include "model/Language.h"

namespace glossmill {

const std::string& Language::status(const StatusTexts& texts, const ProjectContext* project) const {
  return project ? project->languageStatus(*this) : texts.incompleteString;
}

std::string Language::statusString(const StatusTexts& texts, const ProjectContext* project) const {
  return project ? project->languageStatusString(*this) : texts.incompleteString;
}

}  // namespace glossmill
