#include "checks/CheckPolicy.h"

#include <algorithm>

#include "checks/CheckList.h"

namespace glossmill {

namespace {

bool fits(const std::string& pattern, std::string_view text) {
  return pattern.empty() || fitsWildcards(pattern, text);
}

}  // namespace

CheckPolicy::CheckPolicy(const CheckSettings& settings, const std::vector<Check>& wanted) : m_keep(settings.keep) {
  for (const CheckEntry& entry : checkList()) {
    const auto number = static_cast<std::size_t>(entry.check);
    const auto set = settings.severities.find(entry.check);
    const bool isSet = set != settings.severities.end();
    const bool isWanted = std::find(wanted.begin(), wanted.end(), entry.check) != wanted.end();
    m_areSet[number] = isSet && set->second;
    m_severities[number] = isSet ? set->second : entry.severity;
    if (isWanted && !m_severities[number]) m_severities[number] = entry.severity;
    if (!wanted.empty() && !isWanted) m_severities[number].reset();
  }
  for (const IgnoredFindings& ignored : settings.ignored) {
    m_ignored.push_back({ignored, PathGlobs(ignored.file.empty() ? std::vector<std::string>()
                                                                 : std::vector<std::string>{ignored.file})});
  }
  for (const Acceptance& accepted : settings.accepted) m_accepted.emplace(accepted.key, accepted);
}

Severity CheckPolicy::severityOf(const Finding& finding) const {
  const auto number = static_cast<std::size_t>(finding.check);
  if (!m_areSet[number]) return finding.severity;
  const Severity set = *m_severities[number];
  return finding.severity < entryOf(finding.check).severity ? std::min(finding.severity, set) : set;
}

bool CheckPolicy::ignores(const FindingSubject& subject) const {
  return std::any_of(m_ignored.begin(), m_ignored.end(), [&subject](const Ignored& ignored) {
    const IgnoredFindings& said = ignored.said;
    return (!said.check || *said.check == subject.check) && fits(said.key, subject.key) &&
           fits(said.language, subject.language) && fits(said.table, subject.table) &&
           (said.file.empty() || ignored.files.take(subject.file));
  });
}

bool CheckPolicy::isAccepted(const FindingSubject& subject, const std::optional<std::string_view>& source,
                             const std::optional<std::string_view>& translation) const {
  if (m_accepted.empty()) return false;
  const auto [begin, end] = m_accepted.equal_range(std::string(subject.key));
  return std::any_of(begin, end, [&](const auto& entry) {
    const Acceptance& accepted = entry.second;
    return accepted.check == subject.check && accepted.table == subject.table &&
           accepted.language == subject.language && accepted.source == source && accepted.translation == translation;
  });
}

bool CheckPolicy::keeps(std::string_view text) const {
  return std::any_of(m_keep.begin(), m_keep.end(),
                     [text](const std::string& pattern) { return fitsWildcards(pattern, text); });
}

}  // namespace glossmill
