#pragma once

#include <string>

#include "app/AppDelegate.h"
#include "host/HeadlessHost.h"

namespace glossmill::bench {

/// The application without a window, with the project of one directory open in it.
class HeadlessProject {
 public:
  explicit HeadlessProject(const std::string& directory);

  ProjectWindowController& controller() { return *m_delegate.projectWindowController(); }
  HeadlessHost& host() { return m_host; }

 private:
  HeadlessHost m_host;
  AppDelegate m_delegate;
};

}  // namespace glossmill::bench
