#include "app/UnsavedNews.h"

#include <algorithm>
#include <utility>

#include "text/Format.h"

namespace glossmill {

namespace {

constexpr std::string_view kUnsavedNews = "unsaved edits";
constexpr std::string_view kFailedNews = "files not written";
constexpr std::string_view kJournalNews = "no journal";
constexpr std::size_t kMostFilesNamed = 6;

std::size_t conflictsIn(const std::vector<RecoverableEdit>& edits) {
  return static_cast<std::size_t>(std::count_if(edits.begin(), edits.end(), [](const RecoverableEdit& edit) {
    return edit.fit != RecoverableEdit::Fit::Applies;
  }));
}

std::int64_t newestOf(const std::vector<RecoverableEdit>& edits) {
  std::int64_t newest = 0;
  for (const RecoverableEdit& edit : edits) newest = std::max(newest, edit.edit.time);
  return newest;
}

}  // namespace

UnsavedNews::UnsavedNews(ProjectWindowController& project, NewsBoard& board, const Bundle& bundle)
    : m_project(project), m_board(board), m_bundle(bundle) {
  m_project.observers().add([this](ProjectMoment moment) { happened(moment); });
  m_project.edits().addObserver([this](const Edit&, const EditStep&) { tellOfJournal(); });
}

void UnsavedNews::happened(ProjectMoment moment) {
  if (moment == ProjectMoment::Opened) m_isJournalTold = false;
  if (moment == ProjectMoment::Opened) offer();
  if (moment == ProjectMoment::Saved) tellOfFailedFiles();
}

void UnsavedNews::offer() {
  const std::vector<RecoverableEdit> edits = m_project.recoverableEdits();
  m_board.withdraw(kUnsavedNews);
  if (edits.empty()) return;
  News news{std::string(kUnsavedNews), offerText(edits), {}, NewsKind::Warning};
  if (conflictsIn(edits) < edits.size()) news.actions.push_back({localized("Apply"), [this] { applyFitting(); }});
  news.actions.push_back({localized("Show"), [this] {
                            if (show) show();
                          }});
  news.actions.push_back({localized("Discard"), [this] { discard(); }});
  m_board.post(std::move(news));
}

std::string UnsavedNews::offerText(const std::vector<RecoverableEdit>& edits) const {
  const std::string time = timeText ? timeText(newestOf(edits)) : std::string();
  std::string text = edits.size() == 1 ? formatText(localized("1 edit from %@ was never saved"), {time})
                                       : formatText(localized("%ld edits from %@ were never saved"),
                                                    {static_cast<std::int64_t>(edits.size()), time});
  const std::size_t conflicts = conflictsIn(edits);
  if (conflicts == 0) return text;
  return text +
         formatText(localized("; of these, %ld do not fit what is there now"), {static_cast<std::int64_t>(conflicts)});
}

/// What does not fit waits to be looked at.
void UnsavedNews::applyFitting() {
  std::vector<RecoverableEdit> edits = m_project.recoverableEdits();
  std::erase_if(edits, [](const RecoverableEdit& edit) { return edit.fit != RecoverableEdit::Fit::Applies; });
  m_project.recover(edits);
  offer();
}

void UnsavedNews::discard() {
  if (!m_project.discardRecoverableEdits()) offer();
}

void UnsavedNews::tellOfFailedFiles() {
  m_board.withdraw(kFailedNews);
  std::int64_t count = 0;
  std::string list;
  for (const SavedLanguage& language : m_project.lastSave().languages) {
    if (language.outcome.isWritten()) continue;
    if (static_cast<std::size_t>(++count) > kMostFilesNamed) continue;
    list += (list.empty() ? "" : "; ") + language.code + ": " + language.outcome.error.sentence;
  }
  if (count == 0) return;
  if (static_cast<std::size_t>(count) > kMostFilesNamed) list += "; …";
  const std::string text = count == 1 ? formatText(localized("1 language was not saved. %@"), {list})
                                      : formatText(localized("%ld languages were not saved. %@"), {count, list});
  m_board.post({std::string(kFailedNews),
                text,
                {{localized("Try Again"), [this] { m_project.saveProject(); }}},
                NewsKind::Warning});
}

void UnsavedNews::tellOfJournal() {
  if (m_isJournalTold) return;
  const std::optional<Error> problem = m_project.journalProblem();
  if (!problem) return;
  m_isJournalTold = true;
  const std::string text =
      formatText(localized("What you edit cannot be kept safe until it is saved: %@"), {problem->sentence});
  m_board.post({std::string(kJournalNews), text, {}, NewsKind::Warning});
}

}  // namespace glossmill
