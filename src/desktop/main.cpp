#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <cstdio>

#include "desktop/ApplicationSetup.h"
#include "desktop/DesktopProgram.h"
#include "desktop/LaunchArguments.h"
#include "desktop/host/EndSignals.h"
#include "host/AllocatorSettings.h"
#include "host/FileSizeLimit.h"

int main(int argc, char** argv) {
  glossmill::setAllocatorForScans();
  glossmill::makeFileSizeLimitAnError();
  const glossmill::LaunchArguments launch = glossmill::readLaunchArguments(argc, argv, GLOSSMILL_VERSION);
  std::fputs(launch.answer.c_str(), stdout);
  std::fputs(launch.complaint.c_str(), stderr);
  if (!launch.complaint.empty()) return 2;
  if (!launch.answer.empty()) return 0;

  QApplication application(argc, argv);
  glossmill::DesktopProgram program(
      glossmill::setUpApplication(application, QLocale::system().uiLanguages(), GLOSSMILL_VERSION));
  const glossmill::EndSignals signals([&program](int signal) { program.quitPath().endAtOnce(128 + signal); });
  QTimer::singleShot(0, [&] { program.start(launch.directory, launch.rules); });
  const int result = QApplication::exec();
  program.delegate().applicationWillTerminate();
  return result;
}
