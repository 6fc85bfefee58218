#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "checks/CheckSettings.h"
#include "text/PathGlobs.h"

namespace glossmill {

/// What is known of a finding when a project is asked whether it wants to hear of it. Views of the caller's.
struct FindingSubject {
  Check check = Check::Missing;
  std::string_view file;  ///< path from the project's directory
  std::string_view table;
  std::string_view key;
  std::string_view language;
};

/// Which checks are on, how bad their findings are, and what is left out. Any thread.
class CheckPolicy {
 public:
  /// `wanted` checks are on whatever the settings say; none: those that the settings do not turn off.
  CheckPolicy(const CheckSettings& settings, const std::vector<Check>& wanted);

  bool isOn(Check check) const { return m_severities[static_cast<std::size_t>(check)].has_value(); }
  /// The severity that the project gives a finding of this one: what is milder than its check stays so.
  Severity severityOf(const Finding& finding) const;
  /// Whether the settings leave the finding out.
  bool ignores(const FindingSubject& subject) const;
  /// Whether somebody has accepted the finding for these texts.
  bool isAccepted(const FindingSubject& subject, const std::optional<std::string_view>& source,
                  const std::optional<std::string_view>& translation) const;
  /// Whether a text stays as it is in every language.
  bool keeps(std::string_view text) const;

 private:
  struct Ignored {
    IgnoredFindings said;
    PathGlobs files;
  };

  std::array<std::optional<Severity>, kCheckCount> m_severities;
  std::array<bool, kCheckCount> m_areSet{};  ///< the settings give the severity
  std::vector<Ignored> m_ignored;
  std::vector<std::string> m_keep;
  std::unordered_multimap<std::string, Acceptance> m_accepted;  ///< by key
};

}  // namespace glossmill
