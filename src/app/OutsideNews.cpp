#include "app/OutsideNews.h"

#include <optional>
#include <vector>

#include "platform/ShownPath.h"
#include "text/Format.h"

namespace glossmill {

namespace {

constexpr std::string_view kOutsideNews = "changed on disk";

/// Tells one state of a file from another.
std::string stateText(const std::string& path, const std::optional<FileStamp>& stamp) {
  if (!stamp) return path + " gone\n";
  std::string text = path;
  for (const std::int64_t number : {static_cast<std::int64_t>(stamp->size), stamp->modified, stamp->changed,
                                    static_cast<std::int64_t>(stamp->node)}) {
    text += " " + std::to_string(number);
  }
  return text + "\n";
}

}  // namespace

OutsideNews::OutsideNews(const Host& host, ProjectWindowController& project, NewsBoard& board, FileWatch& watch)
    : m_host(host), m_project(project), m_board(board), m_watch(watch) {
  m_project.observers().add([this](ProjectMoment moment) { happened(moment); });
  m_watch.changed = [this] { lookAround(); };
}

/// What others wrote while the project was read was not watched yet; what was written here is nobody else's.
void OutsideNews::happened(ProjectMoment moment) {
  if (moment == ProjectMoment::Closed) {
    m_told.clear();
    m_watch.watch({});
    return;
  }
  lookAround();
}

void OutsideNews::watchFiles() {
  std::vector<FileUrl> files;
  for (const auto& [path, file] : m_project.readFiles().files()) files.emplace_back(path);
  m_watch.watch(files);
}

void OutsideNews::lookAround() {
  if (!m_project.opened()) return;
  watchFiles();
  std::vector<std::string> changed;
  std::string state;
  for (const auto& [path, file] : m_project.readFiles().files()) {
    const Result<std::optional<FileStamp>> now = m_host.saves.stampOf(FileUrl(path));
    if (!now || now.value() == file.stamp) continue;
    changed.push_back(path);
    state += stateText(path, now.value());
  }
  if (state == m_told) return;
  m_told = state;
  if (changed.empty()) {
    m_board.withdraw(kOutsideNews);
  } else {
    tell(changed);
  }
}

void OutsideNews::tell(const std::vector<std::string>& changed) {
  const FileUrl first(changed.front());
  const std::string text =
      changed.size() == 1
          ? formatText(localized("%@ changed on disk"), {shownPath(m_project.projectDirectory(), first)})
          : formatText(localized("%ld files changed on disk"), {static_cast<std::int64_t>(changed.size())});
  m_board.post({std::string(kOutsideNews),
                text,
                {{localized("Reload"), [this] { m_project.reloadProject(); }}},
                NewsKind::Note});
}

}  // namespace glossmill
