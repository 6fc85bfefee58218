#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/EditDoor.h"

namespace glossmill {

/// Edits that were made, and are taken back, together.
struct HistoryStep {
  EditKind kind = EditKind::Typing;
  std::uint64_t number = 0;
  std::optional<LanguageCode> language;  ///< of all edits; nothing when there are several
  std::vector<Edit> edits;               ///< never empty
};

/// What undo and redo go through: every step of an open project. What is typed into one string in one language is one
/// step until another string or language is chosen. Whatever is new cuts off what could have been made again. Holds the
/// records that it knows of. Main thread.
class EditHistory {
 public:
  /// What the door for edits tells; edits of undo and redo are known already.
  void add(const Edit& edit, const EditStep& step);
  /// The editor shows another string or language: what is typed from now on is a step of its own.
  void endVisit() { m_visit.reset(); }
  void clear();

  /// Null when there is nothing to take back, or to make again. Valid until the history changes.
  const HistoryStep* undoStep() const { return m_done.empty() ? nullptr : &m_done.back(); }
  const HistoryStep* redoStep() const { return m_undone.empty() ? nullptr : &m_undone.back(); }
  /// The edits that take the step back, or make it again, in the order in which they are to be applied. There has to be
  /// such a step.
  std::vector<Edit> undo();
  std::vector<Edit> redo();

 private:
  /// What is being typed into one string.
  struct Visit {
    Edit whole;  ///< from the text before to what was typed last, whatever of it was taken back
    std::uint64_t number = 0;
  };

  void addTyping(const Edit& edit, const EditStep& step);
  void addToStep(const Edit& edit, const EditStep& step);
  bool continuesVisit(const Edit& edit) const;
  void removeVisit(std::vector<HistoryStep>& steps) const;

  std::vector<HistoryStep> m_done;
  std::vector<HistoryStep> m_undone;  ///< the one to be made again next is the last
  std::optional<Visit> m_visit;
};

}  // namespace glossmill
