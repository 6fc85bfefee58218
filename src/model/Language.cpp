#include "model/Language.h"

namespace glossmill {

Status Language::status(const ProjectContext* project) const {
  return project ? project->languageStatus(*this) : Status::Incomplete;
}

std::string Language::statusString(const StatusTexts& texts, const ProjectContext* project) const {
  return project ? project->languageStatusString(*this) : texts.incompleteString;
}

}  // namespace glossmill
