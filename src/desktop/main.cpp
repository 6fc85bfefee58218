#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <cstdio>

#include "desktop/ApplicationSetup.h"
#include "desktop/CommandLine.h"
#include "desktop/DesktopProgram.h"
#include "host/AllocatorSettings.h"

int main(int argc, char** argv) {
  glossmill::setAllocatorForScans();
  const glossmill::CommandLine line = glossmill::readCommandLine(argc, argv, GLOSSMILL_VERSION);
  std::fputs(line.answer.c_str(), stdout);
  std::fputs(line.complaint.c_str(), stderr);
  if (!line.complaint.empty()) return 2;
  if (!line.answer.empty()) return 0;

  QApplication application(argc, argv);
  glossmill::DesktopProgram program(
      glossmill::setUpApplication(application, QLocale::system().uiLanguages(), GLOSSMILL_VERSION));
  QTimer::singleShot(0, [&] { program.start(line.directory); });
  const int result = QApplication::exec();
  program.delegate().applicationWillTerminate();
  return result;
}
