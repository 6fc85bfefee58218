#include "app/RulesNews.h"

#include "text/Format.h"

namespace glossmill {

namespace {

std::string counted(std::size_t count, const std::string& one, const std::string& several) {
  return count == 1 ? one : formatText(several, {static_cast<std::int64_t>(count)});
}

}  // namespace

RulesNews::RulesNews(ProjectWindowController& project, NewsBoard& board, const Bundle& bundle)
    : m_project(project), m_board(board), m_bundle(bundle) {
  m_project.observers().add([this](ProjectMoment moment) {
    if (moment == ProjectMoment::Opened) offer();
  });
}

void RulesNews::offer() {
  if (m_project.projectOptions().rules != RuleSet::Classic) return;
  const ScanTotals totals = m_project.scanReport().totals();
  if (totals.rejectedCalls == 0 && totals.unmatchedEntries == 0) return;
  const std::string text = localized("%@. Xcode's rules may read more of this project.");
  const NewsAction use = {localized("Use Xcode's Rules"), [this] {
                            if (useXcodeRules) useXcodeRules();
                          }};
  m_board.post({"other rules", formatText(text, {leftOutText(totals)}), {use}, NewsKind::Offer});
}

std::string RulesNews::leftOutText(const ScanTotals& totals) const {
  const std::string calls =
      counted(totals.rejectedCalls, localized("1 call was not taken"), localized("%ld calls were not taken"));
  const std::string entries =
      counted(totals.unmatchedEntries, localized("1 entry matches no call"), localized("%ld entries match no call"));
  if (totals.unmatchedEntries == 0) return calls;
  return totals.rejectedCalls == 0 ? entries : formatText(localized("%@, and %@"), {calls, entries});
}

}  // namespace glossmill
