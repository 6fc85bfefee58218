#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <memory>
#include <optional>

#include "desktop/DemoProject.h"
#include "desktop/DesktopProgram.h"
#include "desktop/host/OwnTranslator.h"
#include "desktop/host/QtText.h"
#include "desktop/windows/TranslationEditor.h"

class QFileDialog;

namespace glossmill {

/// Each test gets a program with settings of its own and a project on the disk, and drives it through real widgets.
class DesktopFixture : public QObject {
  Q_OBJECT

 protected:
  /// The directory of a given project, or of the demo project.
  void startWith(const QString& directory);
  /// Starts with the demo project and waits until it is open.
  void openDemo();
  /// Ends the program, without the end of the test, and makes another one that speaks this language.
  void startAnew(const QString& language = QStringLiteral("en"));
  void waitForJob();
  /// Runs the event loop in short turns until the condition holds, so that a job has not gone on much since.
  static bool waitBriefly(const std::function<bool()>& condition);
  /// Until a scan has begun to read the strings files.
  void waitForPhaseTwo();
  /// Waits until the project window has the keyboard again, after another window had it.
  void waitForProjectWindow();

  DesktopProgram& program() { return *m_program; }
  ProjectWindowController& project() { return *m_program->delegate().projectWindowController(); }
  const DemoProject& demo() const { return *m_demo; }

  QMainWindow& window();
  QWidget& logWindow();
  template <typename Widget>
  Widget& widget(const char* name) {
    return *find<Widget>(window(), name);
  }
  QTableView& strings() { return widget<QTableView>("stringTableView"); }
  QTableView& languages() { return widget<QTableView>("languageTableView"); }
  TranslationEditor& editor() { return widget<TranslationEditor>("translationTextView"); }
  QLineEdit& search() { return widget<QLineEdit>("searchField"); }
  QComboBox& filter() { return widget<QComboBox>("stringFilterPopUp"); }

  /// A widget of the sheet that is up.
  template <typename Widget>
  Widget& inSheet(const char* name) {
    return *find<Widget>(program().sheets().current()->widget(), name);
  }
  bool isSheetUp() { return program().sheets().isUp(); }
  QAction& command(CommandId id);
  bool isEnabled(CommandId id);

  /// Sends the key to the window that is active, as the keyboard does.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QWidget* in = nullptr);
  void type(const QString& text, QWidget* in = nullptr);
  /// The text of one cell, by the key or code in the first column of its row.
  QString cell(QTableView& table, const QString& first, int column);
  int rowOf(QTableView& table, const QString& first);
  QStringList firstColumn(QTableView& table);
  void select(QTableView& table, const QString& first);
  void click(QWidget& widget);

  /// Presses this button of the next alert; the texts of all alerts that were answered are in alerts().
  void answerAlert(const QString& button);
  /// Presses a key in the next alert instead.
  void answerAlertWithKey(Qt::Key key);
  /// Does something with the next file panel, which is then to be closed: the test fails when it is not.
  void answerPanel(std::function<void(QFileDialog&)> answer);
  const QStringList& alerts() const { return m_alerts; }
  bool allAnswersUsed() const { return m_alertAnswers.isEmpty() && m_alertKey == Qt::Key_unknown && !m_panelAnswer; }
  int terminations() const { return m_terminations; }
  /// With which the process was ended at once; nothing when it was not.
  std::optional<int> exitCode() const { return m_exitCode; }

 private Q_SLOTS:
  void init();
  void cleanup();

 private:
  template <typename Widget>
  static Widget* find(QWidget& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QLatin1String(name));
    if (!found) qFatal("there is no widget %s", name);
    return found;
  }
  static QWidget& topLevel(const char* name);
  void makeProgram(const QString& language);
  void answerWhatIsUp();
  void answer(QFileDialog& panel);

  std::unique_ptr<DemoProject> m_demo;
  std::unique_ptr<QTemporaryDir> m_settings;
  std::unique_ptr<OwnTranslator> m_translator;
  std::unique_ptr<DesktopProgram> m_program;
  QTimer m_answerTimer;
  QStringList m_alerts;
  QStringList m_alertAnswers;
  Qt::Key m_alertKey = Qt::Key_unknown;
  std::function<void(QFileDialog&)> m_panelAnswer;
  int m_terminations = 0;
  std::optional<int> m_exitCode;
};

}  // namespace glossmill
