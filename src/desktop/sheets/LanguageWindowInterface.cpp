#include "desktop/sheets/LanguageWindowInterface.h"

#include "desktop/tables/LanguageColumns.h"
#include "ui_ExportLanguageWindowController.h"
#include "ui_LanguageWindowController.h"

namespace glossmill {

LanguageWindowInterface::Widgets loadLanguageWindowWidgets(std::string_view name) {
  auto sheet = std::make_unique<QWidget>();
  if (name == "ExportLanguageWindowController") {
    Ui::ExportLanguageWindowController ui;
    ui.setupUi(sheet.get());
    return {std::move(sheet), *ui.tableView, *ui.doneButton, *ui.cancelButton, ui.checkButton};
  }
  Ui::LanguageWindowController ui;
  ui.setupUi(sheet.get());
  return {std::move(sheet), *ui.tableView, *ui.doneButton, *ui.cancelButton, nullptr};
}

LanguageWindowInterface::LanguageWindowInterface(Widgets widgets, LanguageWindowController& dialog,
                                                 ProjectWindowController& project, const Bundle& bundle)
    : m_model(dialog.languageController(), languageColumns(project), bundle),
      m_sheet({std::move(widgets.sheet), &widgets.table, &widgets.done, &widgets.cancel}),
      m_table(widgets.table, m_model, std::make_unique<ControllerRows<Language>>(dialog.languageController())),
      m_check(widgets.check ? std::make_unique<WidgetCheckButton>(*widgets.check) : nullptr) {
  dialog.languageController().addObserver([this](ArrayChange change) { m_table.change(change); });
  QObject::connect(&widgets.done, &QPushButton::clicked, &m_table, [&dialog] { dialog.done(); });
  QObject::connect(&widgets.cancel, &QPushButton::clicked, &m_table, [&dialog] { dialog.cancel(); });
  m_table.reloadData();
}

}  // namespace glossmill
