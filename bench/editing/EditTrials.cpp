#include "editing/EditTrials.h"

#include <algorithm>

#include "timing/Findings.h"

namespace glossmill::bench {

namespace {

constexpr std::size_t kRowsInView = 60;

}  // namespace

void EditTrials::filter(int rounds) {
  const std::size_t all = m_controller.stringList().size();
  const auto trial = [&](const std::string& state, std::size_t expected) {
    Samples narrow;
    Samples widen;
    for (int round = 0; round < rounds; ++round) {
      m_controller.stringController().setSelectionIndex(all / 2);
      narrow.add(chooseFilter(1));
      if (m_controller.stringList().size() != expected) giveUp("the filter leaves other strings than it should");
      widen.add(chooseFilter(0));
    }
    report("filter item 1, " + state, narrow);
    report("filter item 0, " + state, widen);
  };
  trial("all complete", 0);
  leaveOutEveryOther();
  trial("half complete", all / 2);
}

double EditTrials::chooseFilter(int index) {
  m_project.host().interfaces.projectWindow()->stringFilterPopUp.selectedIndex = index;
  const Stopwatch time;
  m_controller.changeStringFilter();
  return time.seconds();
}

void EditTrials::leaveOutEveryOther() {
  m_controller.languageController().setSelectionIndex(0);
  for (std::size_t row = 0; row + 1 < m_controller.stringList().size(); row += 2) {
    m_controller.stringController().setSelectionIndex(row);
    m_controller.selectedString()->setTranslationForSelectedString("", &m_controller);
  }
}

void EditTrials::statuses(int rounds) {
  const std::size_t languages = m_controller.languagesList()->size();
  const std::size_t strings = m_controller.stringController().arrangedCount();
  Samples samples;
  ask(0);  // counts everything once
  for (std::size_t number = 0; number < static_cast<std::size_t>(2 * rounds); ++number) {
    const std::size_t row = number / 2 * (strings - 1) / static_cast<std::size_t>(rounds);
    m_controller.stringController().setSelectionIndex(row);
    m_controller.languageController().setSelectionIndex(number / 2 % languages);
    const Stopwatch time;
    edit(number % 2 == 0 ? "" : "another text");
    const std::size_t characters = ask(row);
    samples.add(time.seconds());
    if (characters == 0) giveUp("nothing has a status");
  }
  report("every status after one edit", samples);
}

void EditTrials::edit(std::string_view translation) {
  m_controller.selectedString()->setTranslationForSelectedString(translation, &m_controller);
}

std::size_t EditTrials::ask(std::size_t firstRow) {
  auto& strings = m_controller.stringController();
  const std::size_t end = std::min(firstRow + kRowsInView, strings.arrangedCount());
  std::size_t characters = 0;
  for (const auto& language : *m_controller.languagesList()) {
    characters += m_controller.languageStatusString(*language).size();
  }
  for (std::size_t row = firstRow; row < end; ++row) {
    characters += strings.arrangedObject(row)->statusString(m_controller.statusTexts(), &m_controller).size();
  }
  return characters;
}

}  // namespace glossmill::bench
