#include "edit/EditHistory.h"

#include <algorithm>
#include <utility>

namespace glossmill {

namespace {

HistoryStep takeLast(std::vector<HistoryStep>& steps) {
  HistoryStep step = std::move(steps.back());
  steps.pop_back();
  return step;
}

}  // namespace

void EditHistory::add(const Edit& edit, const EditStep& step) {
  if (step.kind == EditKind::Undo) return;
  if (isTyping(step.kind)) {
    addTyping(edit, step);
  } else {
    addToStep(edit, step);
  }
}

void EditHistory::addToStep(const Edit& edit, const EditStep& step) {
  endVisit();
  m_undone.clear();
  if (m_done.empty() || m_done.back().number != step.number) {
    m_done.push_back({step.kind, step.number, edit.language, {}});
  }
  HistoryStep& last = m_done.back();
  if (last.language != edit.language) last.language.reset();
  last.edits.push_back(edit);
}

/// The visit's step is there as long as the text differs from what it was before. What an editor has taken back to the
/// beginning can be made again as a whole.
void EditHistory::addTyping(const Edit& edit, const EditStep& step) {
  const bool isTakenBack = step.kind == EditKind::TypingBack && continuesVisit(edit);
  if (!continuesVisit(edit)) m_visit = Visit{edit, step.number};
  if (!isTakenBack) m_visit->whole.after = edit.after;
  removeVisit(m_done);
  removeVisit(m_undone);
  if (!isTakenBack) m_undone.clear();
  Edit now = m_visit->whole;
  now.after = edit.after;
  if (!now.changesNothing()) {
    m_done.push_back({EditKind::Typing, m_visit->number, edit.language, {now}});
  } else if (!m_visit->whole.changesNothing()) {
    m_undone.push_back({EditKind::Typing, m_visit->number, edit.language, {m_visit->whole}});
  }
}

bool EditHistory::continuesVisit(const Edit& edit) const {
  return m_visit && m_visit->whole.record == edit.record && m_visit->whole.language == edit.language;
}

void EditHistory::removeVisit(std::vector<HistoryStep>& steps) const {
  const bool isThere =
      !steps.empty() && steps.back().kind == EditKind::Typing && steps.back().number == m_visit->number;
  if (isThere) steps.pop_back();
}

std::vector<Edit> EditHistory::undo() {
  endVisit();
  m_undone.push_back(takeLast(m_done));
  std::vector<Edit> edits = m_undone.back().edits;
  std::reverse(edits.begin(), edits.end());
  for (Edit& edit : edits) std::swap(edit.before, edit.after);
  return edits;
}

std::vector<Edit> EditHistory::redo() {
  endVisit();
  m_done.push_back(takeLast(m_undone));
  return m_done.back().edits;
}

void EditHistory::clear() {
  endVisit();
  m_done.clear();
  m_undone.clear();
}

}  // namespace glossmill
