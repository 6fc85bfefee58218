#include "app/SaveNews.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/ShownPath.h"
#include "safety/ProjectLock.h"
#include "safety/UnfinishedSave.h"
#include "text/Format.h"

namespace glossmill {

namespace {

constexpr std::string_view kLossesNews = "entries not written";
constexpr std::string_view kOtherNamesNews = "other names";
constexpr std::string_view kUnfinishedNews = "unfinished save";
constexpr std::string_view kBusyNews = "another program writes";
constexpr std::size_t kMostNamed = 6;

bool hasLost(const SavedLanguage& language) {
  return language.outcome.isWritten() && language.notWritten() != 0U;
}

}  // namespace

SaveNews::SaveNews(const Host& host, ProjectWindowController& project, NewsBoard& board, SaveRestorer& restorer)
    : m_host(host), m_project(project), m_board(board), m_restorer(restorer) {
  m_project.observers().add([this](ProjectMoment moment) { happened(moment); });
  m_restorer.busy = [this](std::optional<std::int64_t> process, std::function<void()> again) {
    tellThatBusy(process, std::move(again));
  };
  m_restorer.unfinished = [this] { tellOfUnfinishedSave(); };
}

void SaveNews::happened(ProjectMoment moment) {
  if (moment == ProjectMoment::Opened) lookForUnfinishedSave();
  if (moment == ProjectMoment::Saved) saved();
}

/// A save that is at work at this moment is not cut short: its program holds the lock.
void SaveNews::lookForUnfinishedSave() {
  ProjectLock lock(m_host.files, m_host.saves, m_project.projectDirectory());
  const auto held = lock.acquire([] { return false; });
  if (held && held.value()) return;
  SavedVersions versions(m_host.files, m_host.saves, m_project.projectDirectory());
  const bool found = findUnfinishedSave(m_host.files, m_host.saves, versions).has_value();
  lock.release();
  if (found) tellOfUnfinishedSave();
}

void SaveNews::saved() {
  if (m_project.lastSave().refusal) return refused(*m_project.lastSave().refusal);
  for (const std::string_view over : {kLossesNews, kOtherNamesNews, kUnfinishedNews, kBusyNews}) m_board.withdraw(over);
  tellOfLosses();
  tellOfOtherNames();
}

void SaveNews::refused(const SaveRefusal& refusal) {
  if (refusal.kind == SaveRefusal::Kind::Busy) tellThatBusy(refusal.writer, [this] { m_project.saveProject(); });
  if (refusal.kind == SaveRefusal::Kind::Unfinished) tellOfUnfinishedSave();
}

void SaveNews::tellOfLosses() {
  std::vector<const SavedLanguage*> losses;
  for (const SavedLanguage& language : m_project.lastSave().languages) {
    if (hasLost(language)) losses.push_back(&language);
  }
  if (losses.empty()) return;
  News news{std::string(kLossesNews), lossText(losses), {}, NewsKind::Warning};
  if (const std::optional<std::string>& id = m_project.lastSave().id) {
    news.actions.push_back({localized("Show"), [this, id = *id] {
                              if (show) show(id);
                            }});
    news.actions.push_back({localized("Restore"), [this, id = *id] { m_restorer.restore(id); }});
  }
  m_board.post(std::move(news));
}

/// One language with its numbers; of several, how many entries each has lost.
std::string SaveNews::lossText(const std::vector<const SavedLanguage*>& losses) const {
  const SavedLanguage& first = *losses.front();
  if (losses.size() == 1) {
    return formatText(
        localized("%@: %@ entries before, %@ after, %@ not written again"),
        {first.code, countOr(first.entriesBefore), std::to_string(first.entriesAfter), countOr(first.notWritten())});
  }
  std::string list;
  for (std::size_t at = 0; at < std::min(losses.size(), kMostNamed); ++at) {
    list += (at == 0 ? "" : ", ") + losses[at]->code + " " + countOr(losses[at]->notWritten());
  }
  if (losses.size() > kMostNamed) list += ", …";
  return formatText(localized("Entries of %ld languages were not written again: %@"),
                    {static_cast<std::int64_t>(losses.size()), list});
}

std::string SaveNews::countOr(const std::optional<std::uint64_t>& count) const {
  return count ? std::to_string(*count) : localized("unknown");
}

void SaveNews::tellOfOtherNames() {
  std::string names;
  for (const SavedLanguage& language : m_project.lastSave().languages) {
    if (!language.outcome.hasOtherNames || !language.outcome.isWritten()) continue;
    names.append(names.empty() ? "" : ", ").append(shownPath(m_project.projectDirectory(), language.file));
  }
  if (names.empty()) return;
  const std::string text = localized("Other names of these files (hard links) keep the former text: %@");
  m_board.post({std::string(kOtherNamesNews), formatText(text, {names}), {}, NewsKind::Note});
}

std::optional<std::string> SaveNews::unfinishedSave() {
  for (const SavedVersion& version : m_restorer.versions()) {
    if (!version.isFinished) return version.id;
  }
  return std::nullopt;
}

/// Which one it is is looked up when it is acted upon: somebody else may have been quicker.
void SaveNews::tellOfUnfinishedSave() {
  News news{std::string(kUnfinishedNews),
            localized("A save of this project was cut short: some files are new, others are not"),
            {},
            NewsKind::Warning};
  news.actions.push_back({localized("Finish"), [this] {
                            if (const auto id = unfinishedSave()) m_restorer.finish(*id);
                          }});
  news.actions.push_back({localized("Take Back"), [this] {
                            if (const auto id = unfinishedSave()) m_restorer.restore(*id);
                          }});
  m_board.post(std::move(news));
}

void SaveNews::tellThatBusy(std::optional<std::int64_t> process, std::function<void()> again) {
  const std::string text =
      process ? formatText(localized("Nothing was written: process %ld is writing this project"), {*process})
              : localized("Nothing was written: another program is writing this project");
  m_board.post({std::string(kBusyNews), text, {{localized("Try Again"), std::move(again)}}, NewsKind::Warning});
}

}  // namespace glossmill
