#pragma once

#include <functional>
#include <optional>

#include "platform/Panels.h"

namespace glossmill {

/// Panels and alerts whose answers the owner gives. Without an answer open and save panels are cancelled and an alert
/// ends with its default button.
class HeadlessPanels : public Panels {
 public:
  std::optional<FileUrl> runOpenPanel(const OpenPanelRequest& request) override;
  /// Calls `done` before it returns.
  void beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) override;
  AlertAnswer runAlert(const AlertRequest& request) override;

  std::function<std::optional<FileUrl>(const OpenPanelRequest&)> answerOpenPanel;
  std::function<std::optional<FileUrl>(const SavePanelRequest&)> answerSavePanel;
  std::function<AlertAnswer(const AlertRequest&)> answerAlert;
};

}  // namespace glossmill
