#include "host/HeadlessPanels.h"

namespace glossmill {

std::optional<FileUrl> HeadlessPanels::runOpenPanel(const OpenPanelRequest&) {
  return std::nullopt;
}

void HeadlessPanels::beginSavePanel(const SavePanelRequest&, std::function<void(std::optional<FileUrl>)> done) {
  done(std::nullopt);
}

AlertAnswer HeadlessPanels::runAlert(const AlertRequest& request) {
  return answerAlert ? answerAlert(request) : AlertAnswer::Default;
}

}  // namespace glossmill
