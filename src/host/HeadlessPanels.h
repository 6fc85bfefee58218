#pragma once

#include <functional>
#include <optional>

#include "platform/Panels.h"

namespace glossmill {

/// Nobody is there to answer: panels are cancelled, and an alert ends with its default button unless the owner answers
/// it.
class HeadlessPanels : public Panels {
 public:
  std::optional<FileUrl> runOpenPanel(const OpenPanelRequest& request) override;
  /// Calls `done` before it returns.
  void beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) override;
  AlertAnswer runAlert(const AlertRequest& request) override;

  std::function<AlertAnswer(const AlertRequest&)> answerAlert;
};

}  // namespace glossmill
