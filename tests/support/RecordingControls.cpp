#include "support/RecordingControls.h"

#include <cmath>

namespace glossmill {

std::string inQuotes(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string numberText(double value) {
  return value == std::floor(value) ? std::to_string(static_cast<long>(value)) : std::to_string(value);
}

void RecordingTableView::beginUpdates() {
  tell("begin updates");
  inner().beginUpdates();
}

void RecordingTableView::endUpdates() {
  tell("end updates");
  inner().endUpdates();
}

void RecordingTableView::reloadData() {
  tell("reload");
  inner().reloadData();
}

void RecordingTableView::setDoubleAction(std::function<void()> action) {
  tell("set the double action");
  inner().setDoubleAction(std::move(action));
}

void RecordingPopUpButton::selectItemAtIndex(int index) {
  tell("select item " + std::to_string(index));
  inner().selectItemAtIndex(index);
}

void RecordingTextField::setStringValue(std::string_view text) {
  tell(inQuotes(text));
  inner().setStringValue(text);
}

void RecordingProgressIndicator::setIndeterminate(bool indeterminate) {
  tell(indeterminate ? "indeterminate" : "determinate");
  inner().setIndeterminate(indeterminate);
}

void RecordingProgressIndicator::startAnimation() {
  tell("start the animation");
  inner().startAnimation();
}

void RecordingProgressIndicator::setMinValue(double value) {
  tell("minimum " + numberText(value));
  inner().setMinValue(value);
}

void RecordingProgressIndicator::setMaxValue(double value) {
  tell("maximum " + numberText(value));
  inner().setMaxValue(value);
}

void RecordingProgressIndicator::setDoubleValue(double value) {
  tell("value " + numberText(value));
  inner().setDoubleValue(value);
}

void RecordingLogTextView::setString(std::string_view text) {
  tell(inQuotes(text));
  inner().setString(text);
}

void RecordingTranslationTextView::translationChanged() {
  tell("show the translation again");
  inner().translationChanged();
}

void RecordingWindow::setTitle(std::string_view title) {
  tell("title " + inQuotes(title));
  inner().setTitle(title);
}

void RecordingWindow::setDocumentEdited(bool edited) {
  tell(edited ? "edited" : "not edited");
  inner().setDocumentEdited(edited);
}

void RecordingWindow::show() {
  tell("show");
  inner().show();
}

void RecordingWindow::makeKeyAndOrderFront() {
  tell("make key and order front");
  inner().makeKeyAndOrderFront();
}

void RecordingWindow::setOrderedIndex(int index) {
  tell("ordered index " + std::to_string(index));
  inner().setOrderedIndex(index);
}

void RecordingWindow::orderOut() {
  tell("order out");
  inner().orderOut();
}

void RecordingWindow::clearFirstResponder() {
  tell("no first responder");
  inner().clearFirstResponder();
}

void RecordingWindow::focusMainField() {
  tell("focus the main field");
  inner().focusMainField();
}

}  // namespace glossmill
