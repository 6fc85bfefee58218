#include "editing/UnsavedTrials.h"

#include "timing/Findings.h"

namespace glossmill::bench {

UnsavedTrials::UnsavedTrials(HeadlessProject& project, const std::string& directory)
    : m_controller(project.controller()), m_host(project.host()) {
  openAnew(directory);
}

/// Without the question that closing asks: whatever other trials have left is to be forgotten, not saved.
void UnsavedTrials::openAnew(const std::string& directory) {
  ProjectOptions options;
  options.keepsJournal = true;
  m_controller.clearProject();
  m_controller.openProjectAt(FileUrl(directory), options);
  m_host.runUntilIdle();
  if (!m_controller.opened()) giveUp("the project cannot be read anew");
}

void UnsavedTrials::singleEdits(int rounds) {
  Samples samples;
  const std::size_t strings = m_controller.stringController().arrangedCount();
  for (int round = 0; round < rounds; ++round) {
    m_controller.stringController().setSelectionIndex(static_cast<std::size_t>(round) * 7919 % strings);
    const std::string text = "text number " + std::to_string(round);
    const Stopwatch time;
    m_controller.selectedString()->setTranslationForSelectedString(text, &m_controller);
    samples.add(time.seconds());
  }
  m_controller.flushEdits();
  if (m_controller.journalProblem()) giveUp("the journal cannot be written");
  report("an edit, kept in the journal", samples);
}

void UnsavedTrials::fill(std::size_t edits, const std::string& text) {
  const LanguageArray& languages = *m_controller.languagesList();
  const StringArray& strings = m_controller.stringList();
  m_controller.edits().beginEdits();
  for (std::size_t number = 0; number < edits; ++number) {
    const LanguageCode language = languages[number / strings.size() % languages.size()]->code();
    m_controller.applyEdit(EditKind::Fill, editOf(strings[number % strings.size()], language, text));
  }
  m_controller.edits().endEdits();
}

void UnsavedTrials::batches(std::size_t edits, int rounds) {
  Samples batch;
  Samples undo;
  Samples redo;
  for (int round = 0; round < rounds; ++round) {
    const Stopwatch batchTime;
    fill(edits, "text of round " + std::to_string(round));
    batch.add(batchTime.seconds());
    const Stopwatch undoTime;
    m_controller.undo();
    undo.add(undoTime.seconds());
    const Stopwatch redoTime;
    m_controller.redo();
    redo.add(redoTime.seconds());
    m_controller.flushEdits();
  }
  if (m_controller.journalProblem()) giveUp("the journal cannot be written");
  report("a step of 100,000 edits", batch);
  report("its undo", undo);
  report("its redo", redo);
}

}  // namespace glossmill::bench
