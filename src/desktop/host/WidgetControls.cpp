#include "desktop/host/WidgetControls.h"

#include "desktop/host/QtText.h"

namespace glossmill {

void WidgetTextField::setStringValue(std::string_view text) {
  m_label.setText(toQt(text));
}

}  // namespace glossmill
