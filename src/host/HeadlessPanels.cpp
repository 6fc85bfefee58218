#include "host/HeadlessPanels.h"

namespace glossmill {

std::optional<FileUrl> HeadlessPanels::runOpenPanel(const OpenPanelRequest& request) {
  return answerOpenPanel ? answerOpenPanel(request) : std::nullopt;
}

void HeadlessPanels::beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) {
  done(answerSavePanel ? answerSavePanel(request) : std::nullopt);
}

AlertAnswer HeadlessPanels::runAlert(const AlertRequest& request) {
  return answerAlert ? answerAlert(request) : AlertAnswer::Default;
}

}  // namespace glossmill
