#include "support/ScriptedPanels.h"

#include <gtest/gtest.h>

namespace glossmill {

namespace {

template <typename Answer>
Answer takeAnswer(std::deque<Answer>& answers, const char* asker, const std::string& request, Answer otherwise) {
  if (answers.empty()) {
    ADD_FAILURE() << "No answer was scripted for the " << asker << " \"" << request << "\".";
    return otherwise;
  }
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

}  // namespace

ScriptedPanels::~ScriptedPanels() {
  EXPECT_EQ(m_openAnswers.size(), 0U) << "answers for open panels that never came";
  EXPECT_EQ(m_saveAnswers.size(), 0U) << "answers for save panels that never came";
  EXPECT_EQ(m_alertAnswers.size(), 0U) << "answers for alerts that never came";
}

std::optional<FileUrl> ScriptedPanels::runOpenPanel(const OpenPanelRequest& request) {
  openPanels.push_back(request);
  return takeAnswer(m_openAnswers, "open panel", request.title, {});
}

void ScriptedPanels::beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) {
  savePanels.push_back(request);
  done(takeAnswer(m_saveAnswers, "save panel", request.proposedName, {}));
}

AlertAnswer ScriptedPanels::runAlert(const AlertRequest& request) {
  alerts.push_back(request);
  if (onAlert) onAlert(request);
  if (request.alternateButton.empty() && request.otherButton.empty()) return AlertAnswer::Default;
  return takeAnswer(m_alertAnswers, "alert", request.message, AlertAnswer::Default);
}

}  // namespace glossmill
