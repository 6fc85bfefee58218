#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QTableView>
#include <functional>
#include <initializer_list>
#include <string>

#include "desktop/DesktopProgram.h"
#include "desktop/windows/TranslationEditor.h"

namespace glossmill::bench {

/// The application with its real windows and one project open in it; somebody sits before it and types. Main thread.
class Desk {
 public:
  /// Returns when the project can be used.
  Desk(DesktopProgram& program, const std::string& directory);

  DesktopProgram& program() { return m_program; }
  ProjectWindowController& project() { return *m_program.delegate().projectWindowController(); }
  /// A widget of any window, by its name; the one that belongs to the window of this name.
  template <typename Widget>
  Widget& widget(const char* name, const char* window = "ProjectWindowController");

  QTableView& strings() { return widget<QTableView>("stringTableView"); }
  QTableView& languages() { return widget<QTableView>("languageTableView"); }
  TranslationEditor& editor() { return widget<TranslationEditor>("translationTextView"); }
  QLineEdit& searchField() { return widget<QLineEdit>("searchField"); }
  QComboBox& filter() { return widget<QComboBox>("stringFilterPopUp"); }

  /// Sends a key to the project window, as the keyboard does.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Types one character, of whatever script, into a widget.
  void type(QWidget& into, QChar character);

  /// From the action until all of these widgets were painted; what else waits is done before and afterwards.
  double secondsUntilPainted(const std::function<void()>& action, std::initializer_list<QWidget*> widgets);
  void finishJob();
  /// Lets the program do what waits until `isDone`.
  void runUntil(const std::function<bool()>& isDone, const char* what);
  void settle();

 private:
  static QWidget& window(const char* name);

  DesktopProgram& m_program;
};

template <typename Widget>
Widget& Desk::widget(const char* name, const char* windowName) {
  auto* found = window(windowName).findChild<Widget*>(QLatin1String(name));
  if (!found) qFatal("there is no widget %s", name);
  return *found;
}

}  // namespace glossmill::bench
