#include "checks/RowFindings.h"

#include <iterator>

#include "checks/FormatCheck.h"
#include "checks/IdenticalCheck.h"
#include "checks/InvisibleCheck.h"
#include "checks/MissingCheck.h"
#include "checks/NotKeptCheck.h"
#include "checks/PunctuationCheck.h"
#include "checks/UnusedCheck.h"
#include "checks/WhiteSpaceCheck.h"

namespace glossmill {

namespace {

struct TextCheck {
  Check check;
  std::vector<Finding> (*find)(const CheckedText& text);
  bool needsSource;
};

constexpr TextCheck kTextChecks[] = {
    {Check::Format, formatFindings, true},
    {Check::WhiteSpace, whiteSpaceFindings, true},
    {Check::Invisible, invisibleFindings, false},
    {Check::Punctuation, punctuationFindings, true},
};

class RowSearch {
 public:
  RowSearch(const CheckedRow& row, const CheckPolicy& policy) : m_row(row), m_policy(policy) {}

  std::vector<Finding> findings() {
    if (m_policy.isOn(Check::Missing)) add(missingFindings(m_row));
    if (m_policy.isOn(Check::Unused)) add(unusedFindings(m_row));
    if (m_row.translation && !m_row.translation->empty()) findInText();
    return std::move(m_findings);
  }

 private:
  /// Only texts that are written as they stand may be lost on the way.
  void findInText() {
    const bool isRaw = m_row.form == TextForm::Raw;
    if (isRaw && m_policy.isOn(Check::NotKept)) add(notKeptFindings(m_row.record, *m_row.translation));
    const CheckedText text{m_row.source.value_or(""), *m_row.translation, m_row.language, m_row.baseLanguage,
                           m_row.form};
    for (const TextCheck& check : kTextChecks) {
      if (!m_policy.isOn(check.check) || (check.needsSource && !m_row.source)) continue;
      add(check.find(text));
    }
    const bool mayBeSame = !m_row.source || m_policy.keeps(text.translation);
    if (m_policy.isOn(Check::Identical) && !mayBeSame) add(identicalFindings(text, m_row.translations));
  }

  void add(std::vector<Finding> findings) {
    for (Finding& finding : findings) m_findings.push_back(std::move(finding));
  }

  const CheckedRow& m_row;
  const CheckPolicy& m_policy;
  std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> rowFindings(const CheckedRow& row, const CheckPolicy& policy) {
  return RowSearch(row, policy).findings();
}

}  // namespace glossmill
