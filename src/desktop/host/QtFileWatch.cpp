#include "desktop/host/QtFileWatch.h"

#include <QFile>
#include <QSet>

#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

constexpr int kQuiet = 1000;  // milliseconds

/// A file is watched for what is written into it, its directory for what takes its place.
QSet<QString> pathsOf(const std::vector<FileUrl>& files) {
  QSet<QString> paths;
  for (const FileUrl& file : files) {
    for (const FileUrl& url : {file, file.parent()}) {
      const QString path = toQt(url.path());
      if (QFile::exists(path)) paths.insert(path);
    }
  }
  return paths;
}

}  // namespace

QtFileWatch::QtFileWatch() {
  m_quiet.setSingleShot(true);
  m_quiet.setInterval(kQuiet);
  m_quiet.callOnTimeout([this] {
    if (changed) changed();
  });
  const auto begin = [this] { m_quiet.start(); };
  QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, begin);
  QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, begin);
}

/// Asked for again and again, as a file that was replaced is watched no longer.
void QtFileWatch::watch(const std::vector<FileUrl>& files) {
  const QSet<QString> wanted = pathsOf(files);
  const QStringList present = m_watcher.files() + m_watcher.directories();
  const QSet<QString> watched(present.begin(), present.end());
  const QSet<QString> surplus = watched - wanted;
  const QSet<QString> missing = wanted - watched;
  if (!surplus.isEmpty()) m_watcher.removePaths(surplus.values());
  if (!missing.isEmpty()) m_watcher.addPaths(missing.values());
  if (files.empty()) m_quiet.stop();
}

}  // namespace glossmill
