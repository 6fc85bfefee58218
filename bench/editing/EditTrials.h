#pragma once

#include <string_view>

#include "editing/HeadlessProject.h"

namespace glossmill::bench {

/// The filter and the statuses without a window.
class EditTrials {
 public:
  explicit EditTrials(HeadlessProject& project) : m_project(project), m_controller(project.controller()) {}

  void filter(int rounds);
  /// What a window shows again after one edit: the status of every language and of the strings in view.
  void statuses(int rounds);

 private:
  double chooseFilter(int index);
  void leaveOutEveryOther();
  void edit(std::string_view translation);
  /// Asks for what is in view from this row on; gives the length of the answers.
  std::size_t ask(std::size_t firstRow);

  HeadlessProject& m_project;
  ProjectWindowController& m_controller;
};

}  // namespace glossmill::bench
