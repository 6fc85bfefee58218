#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// A source text, a translation, and what a check has to find.
struct CheckCase {
  std::string_view source;
  std::string_view translation;
  std::vector<FindingKind> kinds;
  std::string_view language = "de";
  TextForm form = TextForm::Values;
};

inline std::vector<FindingKind> kindsOf(const std::vector<Finding>& findings) {
  std::vector<FindingKind> kinds;
  for (const Finding& finding : findings) kinds.push_back(finding.kind);
  return kinds;
}

using TextCheck = std::vector<Finding> (*)(const CheckedText&);

inline void expectFindings(TextCheck check, const std::vector<CheckCase>& cases) {
  for (const CheckCase& one : cases) {
    EXPECT_EQ(kindsOf(check({one.source, one.translation, one.language, "en", one.form})), one.kinds)
        << '"' << one.source << "\" and \"" << one.translation << "\" (" << one.language << ')';
  }
}

}  // namespace glossmill
