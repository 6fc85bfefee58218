#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTextDocument>

#include "desktop/TestClasses.h"
#include "desktop/host/QtText.h"
#include "desktop/tables/ColumnTableModel.h"
#include "desktop/tables/RecordTable.h"
#include "host/EmbeddedBundle.h"

namespace glossmill {

namespace {

using Records = ArrayController<std::string>;

/// A table of texts that counts how often a cell was read.
class TextModel : public RecordTableModel {
 public:
  explicit TextModel(const Records& records) : RecordTableModel({{QStringLiteral("Text"), 100}}), m_records(records) {}

  mutable int reads = 0;

 protected:
  QVariant cell(std::size_t row, int, int role) const override {
    ++reads;
    return role == Qt::DisplayRole ? toQt(*m_records.arrangedObject(row)) : QVariant();
  }

 private:
  const Records& m_records;
};

struct Table {
  explicit Table(int count = 200) {
    view.resize(300, 200);
    records.addObserver([this](ArrayChange change) { table.change(change); });
    Records::Array content;
    for (int number = 0; number < count; ++number) content.push_back(record(number));
    records.addObjects(content);
    view.show();
  }

  static Records::Object record(int number) { return std::make_shared<std::string>(std::to_string(10000 + number)); }
  QString top() { return view.model()->index(view.rowAt(1), 0).data().toString(); }
  QString current() { return view.currentIndex().data().toString(); }
  int selectedRows() { return static_cast<int>(view.selectionModel()->selectedRows().size()); }

  bool jobRunning = false;
  Records records;
  TextModel model{records};
  QTableView view;
  RecordTable table{view, model, std::make_unique<ControllerRows<std::string>>(records), [this] { return jobRunning; }};
};

}  // namespace

class TablesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void isAProperModel() {
    Table table(20);
    const QAbstractItemModelTester tester(&table.model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    table.records.setLess([](const std::string& a, const std::string& b) { return a > b; });
    table.records.setFilter([](const std::string& text) { return text.ends_with('1'); });
    table.records.removeAllObjects();
    QCOMPARE(table.model.rowCount(), 0);
  }

  void takesNoToolTipForMarkup() {
    ArrayController<std::string> records;
    records.addObjects({std::make_shared<std::string>("<b>bold</b>\u202E"), std::make_shared<std::string>("plain")});
    const EmbeddedBundle bundle(EmbeddedBundle::StringsTable{});
    ColumnTableModel<std::string> model(records, {{"Text", 100, [](const std::string& text) { return toQt(text); }}},
                                        bundle);
    model.reset(2);
    const QString tip = model.index(0, 0).data(Qt::ToolTipRole).toString();
    QTextDocument shown;
    shown.setHtml(tip);
    QCOMPARE(shown.toPlainText(), QStringLiteral("<b>bold</b><U+202E>"));
    QCOMPARE(model.index(1, 0).data(Qt::ToolTipRole).toString(), QStringLiteral("plain"));
    QCOMPARE(model.index(0, 0).data().toString(), toQt("<b>bold</b>\u202E"));
  }

  void readsVisibleCellsOnly() {
    Table table(100000);
    QVERIFY(QTest::qWaitForWindowExposed(&table.view));
    QTRY_VERIFY(table.model.reads > 0);
    QVERIFY2(table.model.reads < 2000, qPrintable(QString::number(table.model.reads)));
  }

  void followsTheSelectionBothWays() {
    Table table;
    table.records.setSelectionIndex(3);
    QCOMPARE(table.current(), QStringLiteral("10003"));
    QCOMPARE(table.selectedRows(), 1);
    table.view.selectRow(5);
    QCOMPARE(table.records.selectedRow(), std::optional<std::size_t>(5));
    table.records.clearSelection();
    QCOMPARE(table.selectedRows(), 0);
  }

  void keepsTheSelectedRecordThroughASearch() {
    Table table;
    table.records.setSelectionIndex(21);
    table.records.setFilter([](const std::string& text) { return text.ends_with('1'); });
    QCOMPARE(table.model.rowCount(), 20);
    QCOMPARE(table.current(), QStringLiteral("10021"));
    QCOMPARE(table.selectedRows(), 1);
    table.records.setFilter(nullptr);
    QCOMPARE(table.current(), QStringLiteral("10021"));
  }

  void keepsTheTopmostRecordWhenRowsAreAdded() {
    Table table;
    table.view.verticalScrollBar()->setValue(50);
    QCOMPARE(table.top(), QStringLiteral("10050"));
    table.records.addObject(Table::record(200));
    QCOMPARE(table.top(), QStringLiteral("10050"));
    table.records.removeObjectsIf([](const std::string& text) { return text < "10040"; });
    QCOMPARE(table.top(), QStringLiteral("10050"));
  }

  void showsTheSelectionAgainWhenItWasVisible() {
    Table table;
    table.records.setSelectionIndex(150);
    table.records.setFilter([](const std::string& text) { return text >= "10150"; });
    table.view.selectRow(0);
    table.records.setFilter(nullptr);
    QVERIFY(table.view.viewport()->rect().contains(table.view.visualRect(table.view.currentIndex()).center()));
  }

  void doesNotScrollToASelectionThatWasOutOfSight() {
    Table table;
    table.records.setSelectionIndex(0);
    table.view.verticalScrollBar()->setValue(100);
    table.records.addObject(Table::record(200));
    QCOMPARE(table.top(), QStringLiteral("10100"));
  }

  void readsNothingBetweenBeginAndEnd() {
    Table table;
    table.table.beginUpdates();
    table.records.removeAllObjects();
    table.model.reads = 0;
    QVERIFY(!table.model.index(0, 0).data().isValid());
    QCOMPARE(table.model.rowCount(), 200);
    table.records.addObject(Table::record(7));
    table.table.endUpdates();
    QCOMPARE(table.model.rowCount(), 1);
    QCOMPARE(table.model.index(0, 0).data().toString(), QStringLiteral("10007"));
  }

  void waitsForTheOutermostEnd() {
    Table table;
    table.table.beginUpdates();
    table.table.beginUpdates();
    table.records.removeAllObjects();
    table.table.endUpdates();
    QCOMPARE(table.model.rowCount(), 200);
    table.table.endUpdates();
    QCOMPARE(table.model.rowCount(), 0);
  }

  void takesAnEndWithoutABegin() {
    Table table;
    table.table.endUpdates();
    table.records.addObject(Table::record(200));
    QCOMPARE(table.model.rowCount(), 201);
  }

  void waitsForTheJobThatHasBegunABatch() {
    Table table;
    table.jobRunning = true;
    table.table.beginUpdates();
    table.records.addObject(Table::record(200));
    QCoreApplication::processEvents();
    QVERIFY(table.model.isHeld());
    QCOMPARE(table.model.rowCount(), 200);
    table.jobRunning = false;
    table.table.settle();
    QCOMPARE(table.model.rowCount(), 201);
  }

  void survivesABatchThatIsNeverEnded() {
    Table table;
    table.table.beginUpdates();
    table.records.addObject(Table::record(200));
    QTRY_COMPARE(table.model.rowCount(), 201);
    table.records.addObject(Table::record(201));
    QCOMPARE(table.model.rowCount(), 202);
    table.table.beginUpdates();
    table.records.removeAllObjects();
    table.table.endUpdates();
    QTRY_COMPARE(table.model.rowCount(), 0);
  }

  void keepsASelectionThatWasMadeInABatch() {
    Table table;
    table.table.beginUpdates();
    table.records.setSelectionIndex(9);
    table.table.endUpdates();
    QCOMPARE(table.current(), QStringLiteral("10009"));
    QCOMPARE(table.selectedRows(), 1);
  }

  void callsTheDoubleAction() {
    Table table;
    int calls = 0;
    table.table.setDoubleAction([&calls] { ++calls; });
    const QPoint place = table.view.visualRect(table.model.index(1, 0)).center();
    QTest::mouseClick(table.view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table.view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(calls, 1);
  }
};

static const TestRegistration<TablesTest> kTablesRegistration("Tables");

}  // namespace glossmill

#include "TablesTest.moc"
