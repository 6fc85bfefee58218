#include "editing/HeadlessProject.h"

#include "timing/Findings.h"

namespace glossmill::bench {

HeadlessProject::HeadlessProject(const std::string& directory) : m_delegate(m_host.parts()) {
  m_delegate.openProjectWindow();
  ProjectOptions options;
  options.allowance.outside = true;  // the trials save to copies of the files
  controller().openProjectAt(FileUrl(directory), options);
  m_host.runUntilIdle();
  if (!controller().opened() || controller().stringList().empty() || controller().languagesList()->empty()) {
    giveUp("there is no project with strings and languages in " + directory);
  }
}

}  // namespace glossmill::bench
