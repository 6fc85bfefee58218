#include "desktop/DemoProject.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace glossmill {

namespace {

constexpr const char* kSource = R"(
NSLocalizedString(@"Open", @"Button");
NSLocalizedString(@"Close", @"Button");
NSLocalizedString(@"Good morning", @"Greeting of the day");
NSLocalizedString(@"Good night", @"Greeting of the evening");
NSLocalizedString(@"First line
second line", @"");
)";

/// All that lies in the folder App belongs to it.
constexpr const char* kFolderProject = R"(// !$*UTF8*$!
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

DemoProject::DemoProject() {
  write(QStringLiteral("Demo.xcodeproj/project.pbxproj"), "Demo.m More.m");
  write(QStringLiteral("Demo.m"), kSource);
  write(QStringLiteral("en.lproj/Localizable.strings"),
        "\"Open\" = \"Open\";\n\"Close\" = \"Close\";\n\"Good morning\" = \"Good morning\";\n"
        "\"Good night\" = \"Good night\";\n");
  write(QStringLiteral("de.lproj/Localizable.strings"),
        "\"Open\" = \"Auf\";\n\"Close\" = \"Zu\";\n\"Good morning\" = \"Guten Morgen\";\n");
  write(QStringLiteral("ar.lproj/Localizable.strings"), "\"Open\" = \"\xd8\xa7\xd9\x81\xd8\xaa\xd8\xad\";\n");
}

void DemoProject::write(const QString& name, const QByteArray& bytes) const {
  QDir().mkpath(QFileInfo(file(name)).path());
  QFile target(file(name));
  if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size()) qFatal("cannot write a test file");
}

QByteArray DemoProject::read(const QString& name) const {
  QFile source(file(name));
  return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QByteArray DemoProject::folderProjectFile() {
  return kFolderProject;
}

void DemoProject::giveTables() const {
  write(QStringLiteral(".glossmill.json"), R"({"rules": "xcode"})");
  write(QStringLiteral("Demo.xcodeproj/project.pbxproj"), folderProjectFile());
  write(QStringLiteral("App/Deck.m"),
        "NSLocalizedString(@\"Ebb\", @\"Falling\"); NSLocalizedString(@\"Flood\", @\"Rising\");\n"
        "NSLocalizedString(@\"Tide\", nil); NSLocalizedStringFromTable(@\"Sail\", @\"Menu\", nil);\n");
  write(QStringLiteral("App/en.lproj/Localizable.strings"),
        "\"Ebb\" = \"Ebb\";\n\"Flood\" = \"Flood tide\";\n\"Tide\" = \"Tide\";\n\"Old\" = \"Old\";\n");
  write(QStringLiteral("App/de.lproj/Localizable.strings"),
        "\"Ebb\" = \"Ebbe\";\n\"Tide\" = \"Gezeiten\";\n\"Old\" = \"Alt\";\n");
  write(QStringLiteral("App/en.lproj/Menu.strings"), "\"Sail\" = \"Sail\";\n");
  write(QStringLiteral("App/de.lproj/Menu.strings"), "\"Sail\" = \"Segeln\";\n");
}

void DemoProject::growBy(int strings) const {
  QByteArray source;
  QByteArray entries;
  for (int number = 0; number < strings; ++number) {
    source += QStringLiteral("NSLocalizedString(@\"string %1\", @\"\");\n").arg(number).toUtf8();
    entries += QStringLiteral("\"nowhere %1\" = \"x\";\n").arg(number).toUtf8();
  }
  write(QStringLiteral("More.m"), source);
  write(QStringLiteral("de.lproj/Localizable.strings"), read(QStringLiteral("de.lproj/Localizable.strings")) + entries);
}

}  // namespace glossmill
