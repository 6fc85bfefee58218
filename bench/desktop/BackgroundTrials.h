#pragma once

#include "desktop/Desk.h"

namespace glossmill::bench {

/// What background jobs show while they run: their progress, and messages.
class BackgroundTrials {
 public:
  explicit BackgroundTrials(Desk& desk) : m_desk(desk) {}

  /// `scratch` is a directory for the exported file.
  void jobs(const std::string& scratch, int rounds);
  void messages(int rounds);

 private:
  double logFromBackground();

  Desk& m_desk;
};

}  // namespace glossmill::bench
