#include "project/ImportChecks.h"

#include "checks/FormatCheck.h"
#include "checks/IdenticalCheck.h"
#include "checks/InvisibleCheck.h"
#include "checks/NotKeptCheck.h"
#include "checks/PunctuationCheck.h"
#include "checks/SourceTexts.h"
#include "checks/WhiteSpaceCheck.h"

namespace glossmill {

namespace {

using TextCheck = std::vector<Finding> (*)(const CheckedText& text);

constexpr TextCheck kTextChecks[] = {formatFindings, whiteSpaceFindings, invisibleFindings, punctuationFindings};

/// A key such as "error.title" says nothing of what its translation has to look like.
bool isOnlyAName(const std::string& text) {
  return text.find_first_of(" %") == text.npos;
}

}  // namespace

std::vector<Finding> ImportChecks::findingsOf(const ImportItem& item) const {
  const LocalizeString* record = item.edit.record.get();
  if (!record || !item.edit.after) return {};
  std::vector<Finding> findings;
  const bool isClassic = m_rules == RuleSet::Classic;
  if (isClassic) findings = notKeptFindings(*record, *item.edit.after);
  const std::string source = sourceTextOf(*record, m_sources);
  if (source == record->name() && isOnlyAName(source)) return findings;
  const CheckedText text{source, *item.edit.after, item.edit.language.text(), m_sources.language.text(),
                         isClassic ? TextForm::Raw : TextForm::Values};
  for (const TextCheck check : kTextChecks) {
    for (Finding& finding : check(text)) findings.push_back(std::move(finding));
  }
  for (Finding& finding : identicalFindings(text, translationsOf(*record))) findings.push_back(std::move(finding));
  return findings;
}

}  // namespace glossmill
