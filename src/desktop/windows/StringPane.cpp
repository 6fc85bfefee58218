#include "desktop/windows/StringPane.h"

#include "desktop/host/QtText.h"
#include "desktop/tables/ListKeys.h"
#include "desktop/tables/StringColumns.h"
#include "text/Format.h"

namespace glossmill {

StringPane::StringPane(const StringPaneWidgets& widgets, ProjectWindowController& project,
                       const ReferenceText& reference, const Bundle& bundle)
    : m_widgets(widgets),
      m_project(project),
      m_bundle(bundle),
      m_reference(reference),
      m_model(project.stringController(), stringColumns(project, reference), bundle),
      m_table(widgets.table, m_model, std::make_unique<ControllerRows<LocalizeString>>(project.stringController()),
              [&project] { return project.longJobRunning(); }),
      m_filter(widgets.filter),
      m_view(project.stringController()),
      m_search(project, m_view),
      m_tables(widgets.tables, project, m_view, bundle),
      m_only(widgets.only, project, m_view, bundle),
      m_order(project, reference),
      m_columns(widgets.table, m_order) {
  new ListKeys(widgets.search, widgets.table);
  QObject::connect(&widgets.filter, &QComboBox::activated, &m_table, [this] { m_project.changeStringFilter(); });
  QObject::connect(&widgets.search, &QLineEdit::textChanged, &m_table,
                   [this](const QString& text) { m_search.search(fromQt(text)); });
  project.observers().add([this](ProjectMoment moment) {
    if (moment != ProjectMoment::Saved) offerColumns();
  });
  offerColumns();
  showCount();
}

/// A source text that is always the key says nothing new.
void StringPane::offerColumns() {
  m_columns.setOffered(kTableColumn, m_tables.isOffered());
  m_columns.setOffered(kSourceColumn, m_reference.isWorthShowing());
}

void StringPane::referenceChanged() {
  offerColumns();
  m_project.stringController().rearrange();
  m_table.redraw();
}

void StringPane::stringsChanged(ArrayChange change) {
  if (change == ArrayChange::Content) {
    m_search.stringsChanged();
    if (m_project.stringList().empty()) m_widgets.search.clear();
  }
  m_table.change(change);
  if (change != ArrayChange::Selection) showCount();
}

void StringPane::translationsChanged() {
  m_search.translationsChanged();
  if (m_view.isEmpty()) {
    if (m_columns.isSorted()) m_project.stringController().rearrange();
  } else {
    m_view.refresh();
  }
  m_table.redraw();
}

void StringPane::translationEdited() {
  m_search.translationEdited();
  m_table.redrawSelected();
}

/// "12 of 140 strings" while a search narrows the table, "140 strings" otherwise.
void StringPane::showCount() {
  const auto number = [](std::size_t count) { return ArrayCountToLabelTextTransformer::transformedValue(count); };
  const std::size_t shown = m_project.stringController().arrangedCount();
  const std::size_t all = m_project.stringList().size();
  const std::string text =
      shown == all ? formatText(m_bundle.localizedString("Strings: %@"), {number(all)})
                   : formatText(m_bundle.localizedString("Strings: %@ of %@"), {number(shown), number(all)});
  m_widgets.count.setText(toQt(text));
}

void StringPane::focusSearch() {
  m_widgets.search.setFocus(Qt::ShortcutFocusReason);
  m_widgets.search.selectAll();
}

void StringPane::leaveSearch() {
  if (m_widgets.search.text().isEmpty()) {
    m_widgets.table.setFocus(Qt::ShortcutFocusReason);
  } else {
    m_widgets.search.clear();
  }
}

}  // namespace glossmill
