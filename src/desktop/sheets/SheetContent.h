#pragma once

#include <QPushButton>
#include <QWidget>
#include <memory>

#include "platform/Controls.h"

namespace glossmill {

/// What a sheet holds: a loaded interface file's widget and the parts of it that the keyboard needs.
struct SheetParts {
  std::unique_ptr<QWidget> widget;
  QWidget* mainField = nullptr;          ///< gets the keyboard first
  QPushButton* defaultButton = nullptr;  ///< Return; may be null
  QPushButton* cancelButton = nullptr;   ///< Escape
};

/// The window of a sheet, as the program's logic sees it. Begun and ended through Sheets.
class SheetContent : public Window {
 public:
  explicit SheetContent(SheetParts parts) : m_parts(std::move(parts)) {}

  QWidget& widget() { return *m_parts.widget; }
  QPushButton* defaultButton() const { return m_parts.defaultButton; }
  QPushButton& cancelButton() const { return *m_parts.cancelButton; }

  void setTitle(std::string_view title) override;
  void setDocumentEdited(bool edited) override { m_parts.widget->setWindowModified(edited); }
  void show() override { m_parts.widget->show(); }
  void makeKeyAndOrderFront() override { focusMainField(); }
  void setOrderedIndex(int) override {}
  void orderOut() override { m_parts.widget->hide(); }
  void clearFirstResponder() override;
  void focusMainField() override { m_parts.mainField->setFocus(Qt::OtherFocusReason); }

 private:
  SheetParts m_parts;
};

}  // namespace glossmill
