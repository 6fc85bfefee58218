#include "desktop/sheets/LongTimeSheetInterface.h"

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

constexpr int kLookInterval = 100;  // milliseconds

}  // namespace

LongTimeSheetInterface::LongTimeSheetInterface(ProjectWindowController& project, const Shell& shell)
    : m_project(project),
      m_threads(shell.threads),
      m_bundle(shell.bundle),
      m_sheet([this] {
        auto widget = std::make_unique<QWidget>();
        m_widgets.setupUi(widget.get());
        return SheetParts{std::move(widget), m_widgets.cancelButton, nullptr, m_widgets.cancelButton};
      }()),
      m_title(*m_widgets.longTimeSheetTitle),
      m_indicator(*m_widgets.longTimeIndicator) {
  QObject::connect(m_widgets.cancelButton, &QPushButton::clicked, m_widgets.cancelButton, [this] { buttonClicked(); });
  m_afterCancel.setInterval(kLookInterval);
  m_afterCancel.callOnTimeout([this] { lookAfterJob(); });
}

void LongTimeSheetInterface::buttonClicked() {
  if (!m_closes) {
    m_project.longTimeCanceled();
    m_afterCancel.start();
    return;
  }
  m_closes = false;
  setButton("Cancel");
  m_project.clearProject();
  m_project.didEndLongTimeSheetReturnCodeContextInfo();
}

/// A job ends its sheet before it ends itself, and begins the next one before that: a sheet without a job was left.
void LongTimeSheetInterface::lookAfterJob() {
  if (m_project.longJobRunning() && m_threads.jobsRunning() > 0) return;
  m_afterCancel.stop();
  if (!m_project.longJobRunning()) return;
  m_closes = true;
  m_indicator.setIndeterminate(false);
  setButton("Close");
}

void LongTimeSheetInterface::setButton(std::string_view titleKey) {
  m_widgets.cancelButton->setText(toQt(m_bundle.localizedString(titleKey)));
}

}  // namespace glossmill
