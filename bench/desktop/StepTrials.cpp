#include "desktop/StepTrials.h"

#include <algorithm>

#include "timing/Findings.h"

namespace glossmill::bench {

void StepTrials::strings(int count) {
  auto& controller = m_desk.project().stringController();
  controller.setSelectionIndex(0);
  Samples steps;
  for (int step = 0; step < count; ++step) {
    steps.add(m_desk.secondsUntilPainted([&] { m_desk.press(Qt::Key_Down, Qt::AltModifier); },
                                         {m_desk.strings().viewport(), m_desk.editor().viewport()}));
  }
  report("next string", steps);
  report("row after the steps", std::to_string(controller.selectedRow().value_or(0)), std::to_string(count));
}

void StepTrials::languages() {
  m_desk.project().stringController().setSelectionIndex(m_desk.project().stringController().arrangedCount() / 2);
  chooseLanguages("another language");
  m_desk.searchField().setText(QStringLiteral("e"));
  chooseLanguages("another language during a search");
  m_desk.searchField().clear();
}

void StepTrials::chooseLanguages(const std::string& state) {
  auto& controller = m_desk.project().languageController();
  Samples choices;
  controller.setSelectionIndex(0);
  const auto choose = [&](Qt::Key key) {
    choices.add(m_desk.secondsUntilPainted(
        [&] { m_desk.press(key, Qt::AltModifier); },
        {m_desk.strings().viewport(), m_desk.languages().viewport(), m_desk.editor().viewport()}));
  };
  while (controller.canSelectNext()) choose(Qt::Key_Right);
  while (controller.canSelectPrevious()) choose(Qt::Key_Left);
  report(state, choices);
}

void StepTrials::filter(int rounds) {
  m_desk.project().stringController().setSelectionIndex(0);
  const auto all = m_desk.strings().model()->rowCount();
  Samples narrow;
  Samples widen;
  m_desk.filter().setFocus();
  for (int round = 0; round < rounds; ++round) {
    chooseFilter(Qt::Key_Down, narrow);
    if (m_desk.strings().model()->rowCount() == all) giveUp("the filter leaves everything");
    chooseFilter(Qt::Key_Up, widen);
    if (m_desk.strings().model()->rowCount() != all) giveUp("the filter does not give everything back");
  }
  report("filter item 1, seen", narrow);
  report("filter item 0, seen", widen);
}

void StepTrials::chooseFilter(Qt::Key key, Samples& samples) {
  samples.add(m_desk.secondsUntilPainted([&] { m_desk.press(key); },
                                         {m_desk.strings().viewport(), m_desk.languages().viewport()}));
}

void StepTrials::typing(int count) {
  m_desk.project().stringController().setSelectionIndex(1);
  m_desk.editor().setFocus();
  m_desk.editor().clear();
  Samples letters;
  for (int letter = 0; letter < count; ++letter) {
    letters.add(m_desk.secondsUntilPainted([&] { m_desk.type(m_desk.editor(), QLatin1Char('n')); },
                                           {m_desk.strings().viewport(), m_desk.editor().viewport()}));
  }
  report("letter of a translation", letters);
  const std::string stored = m_desk.project().selectedString()->translationForSelectedString(&m_desk.project());
  report("letters typed", std::to_string(std::count(stored.begin(), stored.end(), 'n')), std::to_string(count));
}

}  // namespace glossmill::bench
