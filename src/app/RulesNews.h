#pragma once

#include <functional>
#include <string>

#include "platform/Bundle.h"
#include "platform/NewsBoard.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// Says what the classic rules left out of the project that was just opened, and offers the other ones. Main thread.
class RulesNews {
 public:
  /// All of it outlives this.
  RulesNews(ProjectWindowController& project, NewsBoard& board, const Bundle& bundle);
  RulesNews(const RulesNews&) = delete;
  RulesNews& operator=(const RulesNews&) = delete;

  /// Reads the project by xcode's rules.
  std::function<void()> useXcodeRules;

 private:
  void offer();
  std::string leftOutText(const ScanTotals& totals) const;
  std::string localized(std::string_view key) const { return m_bundle.localizedString(key); }

  ProjectWindowController& m_project;
  NewsBoard& m_board;
  const Bundle& m_bundle;
};

}  // namespace glossmill
