#include "desktop/sheets/SelectLanguageInterface.h"

#include "app/DisplayTransformers.h"
#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"
#include "desktop/look/Icons.h"
#include "desktop/tables/IsoColumns.h"
#include "desktop/tables/ListKeys.h"
#include "text/Format.h"

namespace glossmill {

SelectLanguageInterface::SelectLanguageInterface(SelectLanguageWindowController& dialog, const Bundle& bundle)
    : m_dialog(dialog),
      m_bundle(bundle),
      m_model(dialog.languageController(), isoColumns(bundle), bundle),
      m_sheet([this] {
        auto widget = std::make_unique<QWidget>();
        m_widgets.setupUi(widget.get());
        return SheetParts{std::move(widget), m_widgets.searchField, m_widgets.doneButton, m_widgets.cancelButton};
      }()),
      m_table(*m_widgets.tableView, m_model, std::make_unique<ControllerRows<Language>>(dialog.languageController())),
      m_isoPopUp(*m_widgets.isoPopUpButton) {
  m_widgets.searchField->addAction(icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
  new ListKeys(*m_widgets.searchField, *m_widgets.tableView);
  connectControls();
  setUpTables();
}

void SelectLanguageInterface::setUpTables() {
  QListWidget& list = *m_widgets.tablesList;
  for (const auto& [id, isChosen] : m_dialog.tables()) {
    auto* item = new QListWidgetItem(shownText(id), &list);
    item->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
  }
  if (list.count() > 0) list.setCurrentRow(0);
  m_widgets.tablesLabel->setVisible(list.count() > 0);
  list.setVisible(list.count() > 0);
  QObject::connect(&list, &QListWidget::itemChanged, &m_table, [this, &list](const QListWidgetItem* item) {
    m_dialog.chooseTable(static_cast<std::size_t>(list.row(item)), item->checkState() == Qt::Checked);
    m_widgets.doneButton->setEnabled(m_dialog.canBeDone());
  });
}

void SelectLanguageInterface::connectControls() {
  m_dialog.languageController().addObserver([this](ArrayChange change) {
    m_table.change(change);
    showCount();
  });
  QObject::connect(m_widgets.searchField, &QLineEdit::textChanged, &m_table,
                   [this](const QString& text) { search(text); });
  QObject::connect(m_widgets.isoPopUpButton, &QComboBox::activated, &m_table, [this] {
    m_dialog.changeFilter();
    selectSomething();
  });
  QObject::connect(m_widgets.doneButton, &QPushButton::clicked, &m_table, [this] { m_dialog.done(); });
  QObject::connect(m_widgets.cancelButton, &QPushButton::clicked, &m_table, [this] { m_dialog.cancel(); });
}

void SelectLanguageInterface::search(const QString& text) {
  m_dialog.search(fromQt(text));
  selectSomething();
}

/// Return is to take what a search has found, without another key before.
void SelectLanguageInterface::selectSomething() {
  if (!m_dialog.languageController().selectedRow()) m_dialog.languageController().setSelectionIndex(0);
}

void SelectLanguageInterface::showCount() {
  const std::size_t count = m_dialog.languageController().arrangedCount();
  const std::string number = ArrayCountToLabelTextTransformer::transformedValue(count);
  m_widgets.languageCount->setText(toQt(formatText(m_bundle.localizedString("Languages: %@"), {number})));
}

}  // namespace glossmill
