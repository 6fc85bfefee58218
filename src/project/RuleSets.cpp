#include "project/RuleSets.h"

#include "project/ClassicRules.h"
#include "project/XcodeRules.h"

namespace glossmill {

const ProjectRules& projectRules(RuleSet set) {
  static const ClassicRules kClassic;
  static const XcodeRules kXcode;
  switch (set) {
    case RuleSet::Xcode:
      return kXcode;
    case RuleSet::Classic:
      break;
  }
  return kClassic;
}

}  // namespace glossmill
