#include "desktop/sheets/LongTimeSheetInterface.h"

namespace glossmill {

LongTimeSheetInterface::LongTimeSheetInterface(ProjectWindowController& project)
    : m_sheet([this] {
        auto widget = std::make_unique<QWidget>();
        m_widgets.setupUi(widget.get());
        return SheetParts{std::move(widget), m_widgets.cancelButton, nullptr, m_widgets.cancelButton};
      }()),
      m_title(*m_widgets.longTimeSheetTitle),
      m_indicator(*m_widgets.longTimeIndicator) {
  QObject::connect(m_widgets.cancelButton, &QPushButton::clicked, m_widgets.cancelButton,
                   [&project] { project.longTimeCanceled(); });
}

}  // namespace glossmill
