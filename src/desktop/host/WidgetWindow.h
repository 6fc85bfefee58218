#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/Controls.h"

namespace glossmill {

/// Shows a window that is hidden or minimised, as large as it was before; nothing else about it changes.
void showAgain(QWidget& window);

/// A window of its own, as the program's logic sees it. The widgets outlive it.
class WidgetWindow : public Window {
 public:
  WidgetWindow(QWidget& window, QWidget& mainField) : m_window(window), m_mainField(mainField) {}

  void setTitle(std::string_view title) override;
  void setDocumentEdited(bool edited) override;
  /// Marks the window too, whatever the project calls changed.
  void setHasUnsavedEdits(bool hasUnsavedEdits);
  void show() override;
  void makeKeyAndOrderFront() override;
  void setOrderedIndex(int index) override;
  void orderOut() override { m_window.hide(); }
  /// When nothing else takes the keyboard afterwards, it goes back to where it was or else to the main field, so that
  /// a person without a mouse is not lost.
  void clearFirstResponder() override;
  void focusMainField() override { m_mainField.setFocus(Qt::OtherFocusReason); }

  /// Called after the window was marked as edited or as saved.
  std::function<void()> editedChanged;

 private:
  void mark();

  QWidget& m_window;
  QWidget& m_mainField;
  bool m_isEdited = false;
  bool m_hasUnsavedEdits = false;
};

}  // namespace glossmill
