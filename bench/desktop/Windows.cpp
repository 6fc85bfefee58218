// glossmill-bench-windows DIR SCRATCH: opens the project in DIR in the real windows and measures how long a person
// waits for them. Changes nothing in DIR; SCRATCH is a directory for an exported file.

#include <QApplication>
#include <cstdio>

#include "desktop/ApplicationSetup.h"
#include "desktop/BackgroundTrials.h"
#include "desktop/Desk.h"
#include "desktop/SearchTrials.h"
#include "desktop/StepTrials.h"
#include "host/AllocatorSettings.h"

namespace {

constexpr int kSteps = 400;
constexpr int kFilterRounds = 10;
constexpr int kLetters = 100;
constexpr int kJobRounds = 5;
constexpr int kLogRounds = 3;

}  // namespace

int main(int argc, char** argv) {
  using namespace glossmill;
  setAllocatorForScans();
  QApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("usage: glossmill-bench-windows DIR SCRATCH\n", stderr);
    return 2;
  }
  DesktopProgram program(setUpApplication(application, {QStringLiteral("en")}, "0.0.0"));
  bench::Desk desk(program, argv[1]);
  bench::SearchTrials(desk).run();
  bench::StepTrials steps(desk);
  steps.languages();
  steps.strings(kSteps);
  steps.filter(kFilterRounds);
  steps.typing(kLetters);
  bench::BackgroundTrials background(desk);
  background.jobs(argv[2], kJobRounds);
  background.messages(kLogRounds);
  return 0;
}
