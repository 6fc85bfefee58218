#include "desktop/host/WidgetPanels.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

/// "Text files (*.txt *.rtf)".
QString nameFilter(const std::vector<std::string>& fileTypes, const QString& label) {
  QStringList patterns;
  for (const std::string& type : fileTypes) patterns.append(QStringLiteral("*.") + toQt(type));
  return QStringLiteral("%1 (%2)").arg(label, patterns.join(QLatin1Char(' ')));
}

QString nameFilter(const FileTypeGroup& group) {
  return nameFilter(group.types, toQt(group.title));
}

/// First everything at once, then one by one.
QStringList nameFilters(const OpenPanelRequest& request, const Bundle& bundle) {
  const FileTypeGroup first{bundle.localizedString("Text files"), request.fileTypes};
  if (request.moreTypes.empty()) return {nameFilter(first)};
  FileTypeGroup all{bundle.localizedString("All files that can be imported"), request.fileTypes};
  QStringList filters{nameFilter(first)};
  for (const FileTypeGroup& group : request.moreTypes) {
    all.types.insert(all.types.end(), group.types.begin(), group.types.end());
    filters.append(nameFilter(group));
  }
  filters.prepend(nameFilter(all));
  return filters;
}

/// The chosen kind of file gives the name its extension.
void offerTypes(QFileDialog& panel, const std::vector<FileTypeGroup>& types) {
  QStringList filters;
  for (const FileTypeGroup& group : types) filters.append(nameFilter(group));
  panel.setNameFilters(filters);
  QObject::connect(&panel, &QFileDialog::filterSelected, &panel, [&panel, types, filters](const QString& chosen) {
    const auto which = filters.indexOf(chosen);
    if (which < 0) return;
    const QFileInfo file(panel.selectedFiles().value(0));
    const std::string& type = types[static_cast<std::size_t>(which)].types.front();
    panel.selectFile(file.completeBaseName() + QLatin1Char('.') + toQt(type));
  });
}

void prepareForDirectory(QFileDialog& panel, const OpenPanelRequest& request) {
  panel.setFileMode(QFileDialog::Directory);
  panel.setOption(QFileDialog::ShowDirsOnly, !request.canChooseFiles);
}

/// Where the button stands goes by it.
QMessageBox::ButtonRole roleOf(AlertAnswer answer, const AlertRequest& request) {
  if (answer == request.escape) return QMessageBox::RejectRole;
  return answer == AlertAnswer::Default ? QMessageBox::AcceptRole : QMessageBox::ActionRole;
}

QPushButton* addButton(QMessageBox& box, const std::string& title, QMessageBox::ButtonRole role) {
  return title.empty() ? nullptr : box.addButton(toQt(title), role);
}

/// The box's format of texts is not that of this one, which would take what looks like markup for it.
void setInformativeText(QMessageBox& box, const std::string& text) {
  box.setInformativeText(shownText(text));
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
  if (label) label->setTextFormat(Qt::PlainText);
}

}  // namespace

std::optional<FileUrl> WidgetPanels::runOpenPanel(const OpenPanelRequest& request) {
  if (request.canChooseDirectories && m_presetDirectory) return std::exchange(m_presetDirectory, std::nullopt);
  QFileDialog panel(m_parent, toQt(request.title), m_lastDirectory);
  if (request.canChooseDirectories) {
    prepareForDirectory(panel, request);
  } else {
    panel.setFileMode(QFileDialog::ExistingFile);
    panel.setNameFilters(nameFilters(request, m_bundle));
  }
  // Also keeps a person from renaming and deleting, which no open panel is there for.
  panel.setOption(QFileDialog::ReadOnly, !request.canCreateDirectories);
  if (!request.prompt.empty()) panel.setLabelText(QFileDialog::Accept, toQt(request.prompt));
  if (!request.directory.empty()) panel.setDirectory(toQt(request.directory.path()));
  m_filePanel = &panel;
  m_mailbox.rearm();
  if (panel.exec() != QDialog::Accepted) return std::nullopt;
  return request.canChooseDirectories ? FileUrl(fromQt(panel.selectedFiles().value(0))) : chosenFile(panel);
}

std::optional<FileUrl> WidgetPanels::chosenFile(const QFileDialog& panel) {
  const QString file = panel.selectedFiles().value(0);
  if (file.isEmpty()) return std::nullopt;
  m_lastDirectory = panel.directory().absolutePath();
  return FileUrl(fromQt(file));
}

void WidgetPanels::beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) {
  auto* panel = new QFileDialog(m_parent, toQt(m_bundle.localizedString("Export")), m_lastDirectory);
  panel->setAttribute(Qt::WA_DeleteOnClose);
  panel->setAcceptMode(QFileDialog::AcceptSave);
  if (!request.types.empty()) offerTypes(*panel, request.types);
  panel->selectFile(toQt(request.proposedName));
  m_filePanel = panel;
  QObject::connect(panel, &QDialog::finished, panel, [this, panel, done = std::move(done)](int result) {
    m_filePanel = nullptr;
    done(result == QDialog::Accepted ? chosenFile(*panel) : std::nullopt);
  });
  panel->open();
}

AlertAnswer WidgetPanels::runAlert(const AlertRequest& request) {
  QMessageBox box(m_parent);
  box.setWindowModality(Qt::ApplicationModal);
  box.setTextFormat(Qt::PlainText);
  box.setText(shownText(request.message));
  setInformativeText(box, request.informativeText);
  box.setIconPixmap(QApplication::windowIcon().pixmap(QSize(48, 48), box.devicePixelRatioF()));
  QPushButton* first = addButton(box, request.defaultButton, roleOf(AlertAnswer::Default, request));
  const QPushButton* alternate = addButton(box, request.alternateButton, QMessageBox::DestructiveRole);
  QPushButton* other = addButton(box, request.otherButton, roleOf(AlertAnswer::Other, request));
  box.setDefaultButton(first);
  if (request.escape == AlertAnswer::Default) box.setEscapeButton(first);
  if (request.escape == AlertAnswer::Other && other) box.setEscapeButton(other);
  ++m_alertsUp;
  m_mailbox.rearm();
  box.exec();
  --m_alertsUp;
  if (other && box.clickedButton() == other) return AlertAnswer::Other;
  return alternate && box.clickedButton() == alternate ? AlertAnswer::Alternate : AlertAnswer::Default;
}

void WidgetPanels::cancelFilePanel() {
  if (m_filePanel) m_filePanel->reject();
}

}  // namespace glossmill
