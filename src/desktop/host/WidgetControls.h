#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "platform/Controls.h"

namespace glossmill {

// Small controls as the program's logic sees them. The widgets outlive them.

class WidgetPopUpButton : public PopUpButton {
 public:
  explicit WidgetPopUpButton(QComboBox& box) : m_box(box) {}

  int indexOfSelectedItem() const override { return m_box.currentIndex(); }
  void selectItemAtIndex(int index) override { m_box.setCurrentIndex(index); }

 private:
  QComboBox& m_box;
};

class WidgetCheckButton : public CheckButton {
 public:
  explicit WidgetCheckButton(const QCheckBox& box) : m_box(box) {}

  bool isOn() const override { return m_box.isChecked(); }

 private:
  const QCheckBox& m_box;
};

class WidgetTextField : public TextField {
 public:
  explicit WidgetTextField(QLabel& label) : m_label(label) {}

  void setStringValue(std::string_view text) override;

 private:
  QLabel& m_label;
};

}  // namespace glossmill
