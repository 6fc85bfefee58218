#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

namespace {

constexpr const char* kProjectFile = R"(// !$*UTF8*$!
{
  objects = {
    P = { isa = PBXProject; mainGroup = G; targets = (T); developmentRegion = en; };
    G = { isa = PBXGroup; children = (F); sourceTree = "<group>"; };
    F = { isa = PBXFileSystemSynchronizedRootGroup; path = App; sourceTree = "<group>"; };
    T = { isa = PBXNativeTarget; name = App; buildPhases = (TS, TR); fileSystemSynchronizedGroups = (F); };
    TS = { isa = PBXSourcesBuildPhase; files = (); };
    TR = { isa = PBXResourcesBuildPhase; files = (); };
  };
  rootObject = P;
}
)";

}  // namespace

/// What the window does with a project whose own file asks for xcode's rules.
class RulesTest : public DesktopFixture {
  Q_OBJECT

 private Q_SLOTS:
  void readsAProjectByTheRulesOfItsFile() {
    openByXcode();
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Two\u21B5lines"), QStringLiteral("Say \"yes\"")}));
    QCOMPARE(firstColumn(languages()), QStringList({QStringLiteral("de"), QStringLiteral("en")}));
    QCOMPARE(project().projectOptions().rules, RuleSet::Xcode);
  }

  void showsAndTakesTextsAsTheyAre() {
    openByXcode();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Say \"yes\""));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Sag \"ja\""));
    select(strings(), QStringLiteral("Two\u21B5lines"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Zwei\n\"Zeilen\""));
    QVERIFY(window().isWindowModified());
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(alerts(), QStringList());
    QCOMPARE(demo().read(QStringLiteral("App/de.lproj/Localizable.strings")),
             QByteArray("/* Kopf */\n\"Say \\\"yes\\\"\" = \"Sag \\\"ja\\\"\"; // bleibt\n\n"
                        "/* No comment provided by engineer. */\n\"Two\\nlines\" = \"Zwei\\n\\\"Zeilen\\\"\";\n"));
    QVERIFY(!window().isWindowModified());
  }

  void writesNothingThatNobodyEdited() {
    openByXcode();
    const QByteArray before = demo().read(QStringLiteral("App/de.lproj/Localizable.strings"));
    QVERIFY(project().saveProject());
    QCOMPARE(demo().read(QStringLiteral("App/de.lproj/Localizable.strings")), before);
  }

  void asksAboutATextThatReplacesAnother() {
    openByXcode();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Say \"yes\""));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Sag ja"));
    answerAlert(QStringLiteral("Cancel"));
    project().closeProject();
    QCOMPARE(alerts().size(), 1);
    QVERIFY(project().opened());
  }

  void saysWhatIsWrongWithTheFileAndReadsNothing() {
    demo().write(QStringLiteral(".glossmill.json"), "{\n\"rules\": \"other\"}");
    answerAlert(QStringLiteral("Ok"));
    startWith(demo().directory());
    QVERIFY(alerts().value(0).contains(QStringLiteral(".glossmill.json, line 2")));
    QVERIFY(!project().opened());
    QVERIFY(!project().longJobRunning());
  }

 private:
  void openByXcode() {
    demo().write(QStringLiteral(".glossmill.json"), R"({"rules": "xcode"})");
    demo().write(QStringLiteral("Demo.xcodeproj/project.pbxproj"), kProjectFile);
    demo().write(QStringLiteral("App/Deck.m"),
                 "NSLocalizedString(@\"Two\\nlines\", nil); NSLocalizedString(@\"Say \\\"yes\\\"\", nil);");
    demo().write(QStringLiteral("App/en.lproj/Localizable.strings"),
                 "\"Say \\\"yes\\\"\" = \"Say \\\"yes\\\"\";\n\"Two\\nlines\" = \"Two\\nlines\";\n");
    demo().write(QStringLiteral("App/de.lproj/Localizable.strings"),
                 "/* Kopf */\n\"Say \\\"yes\\\"\" = \"Sag \\\"ja\\\"\"; // bleibt\n");
    openDemo();
  }
};

static const TestRegistration<RulesTest> kRulesRegistration("Rules");

}  // namespace glossmill

#include "RulesTest.moc"
