#include "desktop/sheets/SheetContent.h"

#include "desktop/host/QtText.h"

namespace glossmill {

void SheetContent::setTitle(std::string_view title) {
  m_parts.widget->setAccessibleName(toQt(title));
}

void SheetContent::clearFirstResponder() {
  QWidget* focused = m_parts.widget->focusWidget();
  if (focused) focused->clearFocus();
}

}  // namespace glossmill
