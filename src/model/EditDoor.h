#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "model/Edit.h"

namespace glossmill {

/// What is one step to the user: edits with the same number belong together.
struct EditStep {
  EditKind kind = EditKind::Typing;
  std::uint64_t number = 0;
};

/// The one door through which the translations of an open project change, so that whatever depends on them hears of
/// every edit here and nowhere else. Main thread.
class EditDoor {
 public:
  using Observer = std::function<void(const Edit&, const EditStep&)>;

  /// Observers live as long as the door. They are told in the order in which they came, once the edit is applied.
  void addObserver(Observer observer) { m_observers.push_back(std::move(observer)); }

  /// Everything that is applied from here to endEdits() is one step; otherwise each edit is one.
  void beginEdits();
  void endEdits() { m_isOpen = false; }
  /// `before` has to be what there is. An edit that changes nothing is passed over.
  void applyEdit(EditKind kind, const Edit& edit);

 private:
  std::vector<Observer> m_observers;
  std::uint64_t m_step = 0;
  bool m_isOpen = false;
};

}  // namespace glossmill
