#pragma once

#include <cstddef>
#include <optional>

#include "model/ArrayController.h"

namespace glossmill {

/// The rows of an ArrayController, whatever they hold: how many, which record is where, and what is selected.
class RowSource {
 public:
  virtual ~RowSource() = default;
  virtual std::size_t count() const = 0;
  /// Tells records apart; never followed.
  virtual const void* recordAt(std::size_t row) const = 0;
  virtual std::optional<std::size_t> selectedRow() const = 0;
  virtual void select(std::optional<std::size_t> row) = 0;
};

template <typename T>
class ControllerRows : public RowSource {
 public:
  explicit ControllerRows(ArrayController<T>& controller) : m_controller(controller) {}

  std::size_t count() const override { return m_controller.arrangedCount(); }
  const void* recordAt(std::size_t row) const override { return m_controller.arrangedObject(row).get(); }
  std::optional<std::size_t> selectedRow() const override { return m_controller.selectedRow(); }
  void select(std::optional<std::size_t> row) override {
    row ? m_controller.setSelectionIndex(*row) : m_controller.clearSelection();
  }

 private:
  ArrayController<T>& m_controller;
};

}  // namespace glossmill
