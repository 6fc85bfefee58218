#include "host/HeadlessControls.h"

namespace glossmill {

void HeadlessTextField::setStringValue(std::string_view text) {
  stringValue = text;
  if (changed) changed();
}

void HeadlessProgressIndicator::setIndeterminate(bool indeterminate) {
  isIndeterminate = indeterminate;
  tell();
}

void HeadlessProgressIndicator::startAnimation() {
  isAnimated = true;
  tell();
}

void HeadlessProgressIndicator::setMinValue(double value) {
  minValue = value;
  tell();
}

void HeadlessProgressIndicator::setMaxValue(double value) {
  maxValue = value;
  tell();
}

void HeadlessProgressIndicator::setDoubleValue(double value) {
  doubleValue = value;
  tell();
}

void HeadlessProgressIndicator::tell() const {
  if (changed) changed();
}

void HeadlessLogTextView::setString(std::string_view text) {
  m_text = text;
  if (changed) changed(text);
}

void HeadlessWindow::show() {
  isVisible = true;
  ++showCount;
}

void HeadlessWindow::makeKeyAndOrderFront() {
  isVisible = true;
  isKey = true;
}

void HeadlessWindow::orderOut() {
  isVisible = false;
  isKey = false;
}

void HeadlessWindow::clearFirstResponder() {
  if (const std::function<void()> commit = std::exchange(commitEdit, {})) commit();
  firstResponder = FirstResponder::Nothing;
}

}  // namespace glossmill
