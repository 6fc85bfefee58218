#pragma once

#include <functional>
#include <string_view>

namespace glossmill {

// The controls of a window as the program's logic sees them: a few methods each, main thread only. A host without a
// window keeps their state and shows nothing.

/// A table; its rows come from an ArrayController.
class TableView {
 public:
  virtual ~TableView() = default;
  /// Between the outermost pair of these nothing is redrawn and no row is read.
  virtual void beginUpdates() = 0;
  virtual void endUpdates() = 0;
  virtual void reloadData() = 0;
  virtual void setDoubleAction(std::function<void()> action) = 0;
};

class PopUpButton {
 public:
  virtual ~PopUpButton() = default;
  /// -1 when no item is selected.
  virtual int indexOfSelectedItem() const = 0;
  virtual void selectItemAtIndex(int index) = 0;
};

class CheckButton {
 public:
  virtual ~CheckButton() = default;
  virtual bool isOn() const = 0;
};

class TextField {
 public:
  virtual ~TextField() = default;
  virtual void setStringValue(std::string_view text) = 0;
};

class ProgressIndicator {
 public:
  virtual ~ProgressIndicator() = default;
  virtual void setIndeterminate(bool indeterminate) = 0;
  virtual void startAnimation() = 0;
  virtual void setMinValue(double value) = 0;
  virtual void setMaxValue(double value) = 0;
  virtual void setDoubleValue(double value) = 0;
};

/// The log's read-only text.
class LogTextView {
 public:
  virtual ~LogTextView() = default;
  /// Shows the whole of `text`, which stays where it is until the next call; a view may draw it later, but before
  /// anybody looks. Usually only the end of the text is new.
  virtual void setString(std::string_view text) = 0;
};

/// The editor of the selected translation.
class TranslationTextView {
 public:
  virtual ~TranslationTextView() = default;
  /// Shows the text of the selected string in the selected language again.
  virtual void translationChanged() = 0;
};

/// A window or a sheet.
class Window {
 public:
  virtual ~Window() = default;
  virtual void setTitle(std::string_view title) = 0;
  virtual void setDocumentEdited(bool edited) = 0;
  virtual void show() = 0;
  virtual void makeKeyAndOrderFront() = 0;
  virtual void setOrderedIndex(int index) = 0;
  /// Harmless when it is not on screen.
  virtual void orderOut() = 0;
  /// Nothing is the first responder: an edit in progress is committed.
  virtual void clearFirstResponder() = 0;
  /// Puts the keyboard into the window's main field: the translation editor, or a dialog's search field.
  virtual void focusMainField() = 0;
};

}  // namespace glossmill
