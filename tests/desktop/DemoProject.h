#pragma once

#include <QString>
#include <QTemporaryDir>

namespace glossmill {

/// A small Xcode project on the disk, in a directory of its own that goes away with it: Demo.m with five strings, and
/// the languages ar, de and en. English is complete, German lacks two, Arabic all but one.
class DemoProject {
 public:
  DemoProject();

  QString directory() const { return m_directory.path() + QStringLiteral("/Demo"); }
  QString file(const QString& name) const { return directory() + QLatin1Char('/') + name; }

  /// The text of a project file to which all belongs that lies in the folder App.
  static QByteArray folderProjectFile();

  /// Writes a file of the project, and makes the directory that it lies in.
  void write(const QString& name, const QByteArray& bytes) const;
  QByteArray read(const QString& name) const;

  /// Makes it one that is read by xcode's rules, with the tables App/Localizable (calls of Ebb, Flood and Tide; Old is
  /// unused) and App/Menu (a call of Sail) in de and en. German lacks Flood.
  void giveTables() const;

  /// Gives the project this many more strings, "string 0" and so on, with as many entries of de without a match.
  void growBy(int strings) const;

 private:
  QTemporaryDir m_directory;
};

}  // namespace glossmill
