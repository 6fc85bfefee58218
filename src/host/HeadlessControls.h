#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/Controls.h"

namespace glossmill {

// Controls of a window that nobody sees: they keep what they were told, for the owner of the host to read.

class HeadlessTableView : public TableView {
 public:
  void beginUpdates() override { ++updatesDepth; }
  void endUpdates() override { --updatesDepth; }
  void reloadData() override { ++reloadCount; }
  void setDoubleAction(std::function<void()> action) override { doubleAction = std::move(action); }

  int updatesDepth = 0;  ///< 0 outside every pair of beginUpdates() and endUpdates()
  int reloadCount = 0;
  std::function<void()> doubleAction;  ///< call it to double-click
};

class HeadlessPopUpButton : public PopUpButton {
 public:
  int indexOfSelectedItem() const override { return selectedIndex; }
  void selectItemAtIndex(int index) override { selectedIndex = index; }

  int selectedIndex = 0;
};

class HeadlessCheckButton : public CheckButton {
 public:
  bool isOn() const override { return checked; }

  bool checked = false;
};

class HeadlessTextField : public TextField {
 public:
  void setStringValue(std::string_view text) override;

  std::string stringValue;
  std::function<void()> changed;  ///< called after each change
};

class HeadlessProgressIndicator : public ProgressIndicator {
 public:
  void setIndeterminate(bool indeterminate) override;
  void startAnimation() override;
  void setMinValue(double value) override;
  void setMaxValue(double value) override;
  void setDoubleValue(double value) override;

  bool isIndeterminate = false;
  bool isAnimated = false;
  double minValue = 0;
  double maxValue = 100;
  double doubleValue = 0;
  std::function<void()> changed;  ///< called after each change

 private:
  void tell() const;
};

/// Refers to the text instead of copying it: a long log is set again with every line.
class HeadlessLogTextView : public LogTextView {
 public:
  void setString(std::string_view text) override;

  /// The whole log, "" before the first text; valid as long as the text that was set.
  std::string_view string() const { return m_text; }

  std::function<void(std::string_view)> changed;  ///< called with the whole text after each change

 private:
  std::string_view m_text;
};

class HeadlessTranslationTextView : public TranslationTextView {
 public:
  void translationChanged() override { ++changeCount; }

  int changeCount = 0;
};

class HeadlessWindow : public Window {
 public:
  enum class FirstResponder { Nothing, MainField };

  void setTitle(std::string_view text) override { title = text; }
  void setDocumentEdited(bool edited) override { isDocumentEdited = edited; }
  void show() override;
  void makeKeyAndOrderFront() override;
  void setOrderedIndex(int index) override { orderedIndex = index; }
  void orderOut() override;
  /// Commits the edit first, as a text view that loses the keyboard does.
  void clearFirstResponder() override;
  void focusMainField() override { firstResponder = FirstResponder::MainField; }

  std::string title;
  bool isDocumentEdited = false;
  bool isVisible = false;
  bool isKey = false;
  int orderedIndex = -1;  ///< -1: never set
  int showCount = 0;
  FirstResponder firstResponder = FirstResponder::Nothing;
  std::function<void()> commitEdit;  ///< what an edit in progress does when it is committed
};

}  // namespace glossmill
