// Usage: desktop_tests CLASS [OPTION of Qt Test]…
//
// Runs the tests of one class; without arguments those of all.

#include <QApplication>
#include <QTest>
#include <cstdio>

#include "desktop/ApplicationSetup.h"
#include "desktop/StillStyle.h"
#include "desktop/TestClasses.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(new glossmill::StillStyle);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
  glossmill::setUpApplication(application, {QStringLiteral("en")}, "0.0.0");

  const std::string wanted = argc > 1 ? argv[1] : "";
  int failed = 0;
  int run = 0;
  for (const auto& [name, make] : glossmill::testClasses()) {
    if (!wanted.empty() && name != wanted) continue;
    ++run;
    QStringList arguments = QApplication::arguments();
    if (!wanted.empty()) arguments.removeAt(1);
    const auto test = make();
    failed += QTest::qExec(test.get(), arguments);
  }
  if (run == 0) std::fprintf(stderr, "there is no test class %s\n", wanted.c_str());
  return failed == 0 && run > 0 ? 0 : 1;
}
