// Usage: desktop_save_driver PROJECT LANGUAGE KEY TEXT
//
// Opens the project in the real window, says "ready", waits for a line, stores the text and saves with the command of
// the menu. A question is left with Escape. Says "saved" or "refused"; for tests that let others write at the same
// time.

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <string>

#include "desktop/ApplicationSetup.h"
#include "desktop/DesktopProgram.h"
#include "desktop/StillStyle.h"
#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

class SaveDriver {
 public:
  explicit SaveDriver(DesktopProgram& program) : m_program(program) {
    m_answers.setInterval(2);
    m_answers.callOnTimeout([] {
      auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (question) question->reject();
    });
    m_answers.start();
  }

  bool open(const QString& directory) {
    m_program.start(FileUrl(fromQt(directory)));
    while (project().longJobRunning()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return project().opened();
  }

  bool store(std::string_view language, std::string_view key, std::string text) {
    for (const auto& record : project().stringList()) {
      if (record->name() != key) continue;
      project().applyEdit(EditKind::Typing, editOf(record, LanguageCode(language), std::move(text)));
      return true;
    }
    return false;
  }

  bool save() {
    m_program.actions().validate();
    m_program.actions().action(CommandId::Save).trigger();
    return !project().lastSave().refusal && !project().lastSave().languages.empty();
  }

 private:
  ProjectWindowController& project() { return *m_program.delegate().projectWindowController(); }

  DesktopProgram& m_program;
  QTimer m_answers;
};

void say(const char* word) {
  std::printf("%s\n", word);
  std::fflush(stdout);
}

}  // namespace

}  // namespace glossmill

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 5) return 2;
  QApplication::setStyle(new glossmill::StillStyle);
  glossmill::DesktopProgram program(glossmill::setUpApplication(application, {QStringLiteral("en")}, "0.0.0"));
  glossmill::SaveDriver driver(program);
  if (!driver.open(QDir(QString::fromLocal8Bit(argv[1])).absolutePath())) return 1;
  glossmill::say("ready");
  if (std::getchar() == EOF) return 1;
  if (!driver.store(argv[2], argv[3], argv[4])) return 1;
  glossmill::say(driver.save() ? "saved" : "refused");
  return 0;
}
