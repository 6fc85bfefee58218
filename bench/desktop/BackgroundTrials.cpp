#include "desktop/BackgroundTrials.h"

#include <QPlainTextEdit>
#include <QProgressBar>

#include "desktop/PaintWatch.h"
#include "editing/JobTrials.h"
#include "host/PosixFiles.h"
#include "timing/Findings.h"

namespace glossmill::bench {

namespace {

constexpr int kMessages = 100'000;
constexpr std::size_t kLongJobTimes = 10;
constexpr const char* kMessage = "Language \"Portuguese (Brazil)\" has no translation of \"Archive the message\" ";

}  // namespace

void BackgroundTrials::jobs(const std::string& scratch, int rounds) {
  PosixFiles files;
  JobTrials trials(m_desk.project(), files, FileUrl(scratch), [this] { m_desk.finishJob(); });
  trials.run("desktop", rounds);

  const PaintWatch bar({&m_desk.widget<QProgressBar>("longTimeIndicator", "LongTimeSheet")});
  const Stopwatch time;
  trials.runLongJob(kLongJobTimes);
  report("long job", time.seconds());
  report("pictures of the bar in the long job", static_cast<double>(bar.moments().size()));
  report("most pictures of the bar in a second", static_cast<double>(mostInOneSecond(bar.moments())));
}

void BackgroundTrials::messages(int rounds) {
  m_desk.program().delegate().openLogWindow();
  Samples samples;
  for (int round = 0; round < rounds; ++round) samples.add(logFromBackground());
  report("100,000 log messages", samples);
}

double BackgroundTrials::logFromBackground() {
  auto& text = m_desk.widget<QPlainTextEdit>("textView", "LogWindowController");
  m_desk.program().delegate().clearLog();
  m_desk.runUntil([&] { return text.blockCount() == 1; }, "an empty log");
  const Stopwatch time;
  m_desk.program().threads().performInBackground([this] {
    for (int number = 0; number < kMessages; ++number) m_desk.project().logText(kMessage + std::to_string(number));
  });
  m_desk.runUntil([&] { return text.blockCount() == kMessages + 1; }, "all messages");
  m_desk.secondsUntilPainted([&] { text.viewport()->update(); }, {text.viewport()});
  return time.seconds();
}

}  // namespace glossmill::bench
