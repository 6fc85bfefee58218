#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include "app/LogWindowController.h"
#include "desktop/windows/LogTextEdit.h"
#include "platform/InterfaceFiles.h"
#include "ui_LogWindowController.h"

namespace glossmill {

/// The loaded log window. Messages bring it to the front without taking the keyboard from whoever has it.
class LogWindowInterface : public LoadedInterface, public Window {
 public:
  explicit LogWindowInterface(LogWindowController& log);
  ~LogWindowInterface() override;

  LogWindowOutlets outlets() { return {this, m_widgets.textView}; }
  QWidget& widget() { return m_widget; }

  void setTitle(std::string_view title) override;
  void setDocumentEdited(bool) override {}
  void show() override;
  void makeKeyAndOrderFront() override;
  void setOrderedIndex(int) override {}
  void orderOut() override { m_widget.hide(); }
  void clearFirstResponder() override {}
  void focusMainField() override { m_widgets.searchField->setFocus(); }

 private:
  void setUpSearch();
  void addShortcut(const QKeySequence& key, const std::function<void()>& action);
  void copyAll();

  LogWindowController& m_log;
  QWidget m_widget;
  Ui::LogWindowController m_widgets;
  QElapsedTimer m_lastRaise;
};

}  // namespace glossmill
