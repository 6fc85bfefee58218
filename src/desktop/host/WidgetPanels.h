#pragma once

#include <QPointer>
#include <QWidget>
#include <utility>

#include "host/MainThreadMailbox.h"
#include "platform/Bundle.h"
#include "platform/Panels.h"

class QFileDialog;

namespace glossmill {

/// The desktop's own file panels, and alerts. Background jobs reach the main thread also while one of them is up.
class WidgetPanels : public Panels {
 public:
  WidgetPanels(MainThreadMailbox& mailbox, const Bundle& bundle) : m_mailbox(mailbox), m_bundle(bundle) {}

  std::optional<FileUrl> runOpenPanel(const OpenPanelRequest& request) override;
  void beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) override;
  AlertAnswer runAlert(const AlertRequest& request) override;

  /// The window that panels and alerts belong to.
  void setParentWindow(QWidget* window) { m_parent = window; }
  /// Answers the next panel for a directory instead of the user; nothing takes an answer back that was not used.
  void presetDirectory(std::optional<FileUrl> directory) { m_presetDirectory = std::move(directory); }
  bool isAlertUp() const { return m_alertsUp > 0; }
  bool isFilePanelUp() const { return !m_filePanel.isNull(); }
  void cancelFilePanel();

 private:
  std::optional<FileUrl> chosenFile(const QFileDialog& panel);

  MainThreadMailbox& m_mailbox;
  const Bundle& m_bundle;
  QPointer<QWidget> m_parent;
  QPointer<QFileDialog> m_filePanel;
  QString m_lastDirectory;  ///< where a file was chosen last
  std::optional<FileUrl> m_presetDirectory;
  int m_alertsUp = 0;
};

}  // namespace glossmill
