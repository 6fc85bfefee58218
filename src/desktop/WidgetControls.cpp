#include "desktop/WidgetControls.h"

#include "desktop/QtText.h"

namespace glossmill {

void WidgetTextField::setStringValue(std::string_view text) {
  m_label.setText(toQt(text));
}

}  // namespace glossmill
