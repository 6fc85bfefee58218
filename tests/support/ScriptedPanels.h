#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/Panels.h"

namespace glossmill {

/// Panels and alerts answered from a script, in order. The test fails when an answer is missing (the panel is then
/// cancelled, the alert ends with its default button) or left over at the end. An alert with only one button needs no
/// answer.
class ScriptedPanels : public Panels {
 public:
  ScriptedPanels() = default;
  ScriptedPanels(const ScriptedPanels&) = delete;
  ScriptedPanels& operator=(const ScriptedPanels&) = delete;
  ~ScriptedPanels() override;

  void willChoose(std::string_view path) { m_openAnswers.emplace_back(FileUrl(path)); }
  void willCancelOpenPanel() { m_openAnswers.emplace_back(std::nullopt); }
  void willSaveAs(std::string_view path) { m_saveAnswers.emplace_back(FileUrl(path)); }
  void willCancelSavePanel() { m_saveAnswers.emplace_back(std::nullopt); }
  void willAnswer(AlertAnswer answer) { m_alertAnswers.push_back(answer); }

  /// Every request so far.
  std::vector<OpenPanelRequest> openPanels;
  std::vector<SavePanelRequest> savePanels;
  std::vector<AlertRequest> alerts;

  /// Called while an alert is up.
  std::function<void(const AlertRequest&)> onAlert;

  std::optional<FileUrl> runOpenPanel(const OpenPanelRequest& request) override;
  void beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) override;
  AlertAnswer runAlert(const AlertRequest& request) override;

 private:
  std::deque<std::optional<FileUrl>> m_openAnswers;
  std::deque<std::optional<FileUrl>> m_saveAnswers;
  std::deque<AlertAnswer> m_alertAnswers;
};

}  // namespace glossmill
