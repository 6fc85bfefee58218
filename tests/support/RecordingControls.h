#pragma once

#include <string>
#include <utility>

#include "platform/Controls.h"
#include "support/CallRecorder.h"

namespace glossmill {

// Controls that pass on to other ones what they are told, and write it down. Questions are not written down.

std::string inQuotes(std::string_view text);
/// Without a fraction when there is none.
std::string numberText(double value);

template <typename Control>
class RecordingControl : public Control {
 public:
  /// `name` is what the lines begin with; `inner` outlives this.
  RecordingControl(CallRecorder& calls, std::string name, Control& inner)
      : m_calls(calls), m_name(std::move(name)), m_inner(inner) {}

  Control& inner() const { return m_inner; }
  const std::string& name() const { return m_name; }

 protected:
  void tell(std::string_view what) { m_calls.addOnMainThread(m_name, what); }

 private:
  CallRecorder& m_calls;
  const std::string m_name;
  Control& m_inner;
};

class RecordingTableView : public RecordingControl<TableView> {
 public:
  using RecordingControl::RecordingControl;
  void beginUpdates() override;
  void endUpdates() override;
  void reloadData() override;
  void setDoubleAction(std::function<void()> action) override;
};

class RecordingPopUpButton : public RecordingControl<PopUpButton> {
 public:
  using RecordingControl::RecordingControl;
  int indexOfSelectedItem() const override { return inner().indexOfSelectedItem(); }
  void selectItemAtIndex(int index) override;
};

class RecordingTextField : public RecordingControl<TextField> {
 public:
  using RecordingControl::RecordingControl;
  void setStringValue(std::string_view text) override;
};

class RecordingProgressIndicator : public RecordingControl<ProgressIndicator> {
 public:
  using RecordingControl::RecordingControl;
  void setIndeterminate(bool indeterminate) override;
  void startAnimation() override;
  void setMinValue(double value) override;
  void setMaxValue(double value) override;
  void setDoubleValue(double value) override;
};

class RecordingLogTextView : public RecordingControl<LogTextView> {
 public:
  using RecordingControl::RecordingControl;
  void setString(std::string_view text) override;
};

class RecordingTranslationTextView : public RecordingControl<TranslationTextView> {
 public:
  using RecordingControl::RecordingControl;
  void translationChanged() override;
};

class RecordingWindow : public RecordingControl<Window> {
 public:
  using RecordingControl::RecordingControl;
  void setTitle(std::string_view title) override;
  void setDocumentEdited(bool edited) override;
  void show() override;
  void makeKeyAndOrderFront() override;
  void setOrderedIndex(int index) override;
  void orderOut() override;
  void clearFirstResponder() override;
  void focusMainField() override;
};

}  // namespace glossmill
