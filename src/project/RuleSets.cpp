#include "project/RuleSets.h"

#include "project/ClassicRules.h"

namespace glossmill {

const ProjectRules& projectRules(RuleSet set) {
  static const ClassicRules kClassic;
  switch (set) {
    case RuleSet::Classic:
      break;
  }
  return kClassic;
}

}  // namespace glossmill
