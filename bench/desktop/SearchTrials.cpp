#include "desktop/SearchTrials.h"

#include "desktop/host/QtText.h"
#include "text/FoldCase.h"
#include "timing/Findings.h"

namespace glossmill::bench {

namespace {

constexpr std::size_t kLanguages = 5;
constexpr const char* kWords[] = {"message", "Archive the", "zx"};

}  // namespace

void SearchTrials::run() {
  const std::size_t languages = m_desk.project().languagesList()->size();
  for (std::size_t turn = 0; turn < kLanguages; ++turn) searchIn(turn * (languages - 1) / (kLanguages - 1));
  report("first letter of a search", m_firstLetters);
  report("further letter of a search", m_furtherLetters);
  report("letter taken back", m_lettersTakenBack);
  report("search cleared", m_clearings);
  report("searches that found the right strings", std::to_string(m_rightSearches), std::to_string(m_searches));
}

void SearchTrials::searchIn(std::size_t language) {
  m_desk.project().languageController().setSelectionIndex(language);
  m_desk.project().stringController().setSelectionIndex(m_desk.project().stringController().arrangedCount() / 2);
  m_desk.searchField().setFocus();
  for (const char* word : kWords) {
    typeWord(QLatin1String(word));
    clear();
  }
  const QString foreign = partOfTranslation();
  typeWord(foreign);
  takeBack(foreign);
}

void SearchTrials::typeWord(const QString& word) {
  for (const QChar letter : word) {
    const bool isFirst = m_desk.searchField().text().isEmpty();
    const double seconds =
        m_desk.secondsUntilPainted([&] { m_desk.type(m_desk.searchField(), letter); }, {m_desk.strings().viewport()});
    (isFirst ? m_firstLetters : m_furtherLetters).add(seconds);
  }
  checkFound(word);
}

void SearchTrials::takeBack(const QString& word) {
  for (qsizetype letter = 0; letter < word.size(); ++letter) {
    m_lettersTakenBack.add(
        m_desk.secondsUntilPainted([&] { m_desk.press(Qt::Key_Backspace); }, {m_desk.strings().viewport()}));
  }
  checkFound(QString());
}

void SearchTrials::clear() {
  m_clearings.add(m_desk.secondsUntilPainted([&] { m_desk.press(Qt::Key_Escape); }, {m_desk.strings().viewport()}));
  checkFound(QString());
}

QString SearchTrials::partOfTranslation() {
  const auto record = m_desk.project().stringList().back();
  const auto language = m_desk.project().selectedLanguage();
  const auto text = record->languagesDict().find(language->code());
  if (!text) giveUp("the last string is not translated");
  return toQt(*text).left(5);
}

void SearchTrials::checkFound(const QString& wanted) {
  ++m_searches;
  const std::size_t expected = stringsWith(wanted);
  const auto shown = static_cast<std::size_t>(m_desk.strings().model()->rowCount());
  if (shown == expected && m_desk.searchField().text() == wanted) ++m_rightSearches;
}

std::size_t SearchTrials::stringsWith(const QString& wanted) {
  const std::string folded = foldCase(fromQt(wanted));
  const LanguageCode language = m_desk.project().selectedLanguage()->code();
  std::size_t count = 0;
  for (const auto& record : m_desk.project().stringList()) {
    const std::string translation(record->languagesDict().find(language).value_or(""));
    const std::string text = foldCase(record->name() + '\n' + record->comment() + '\n' + translation);
    count += text.find(folded) != std::string::npos ? 1 : 0;
  }
  return count;
}

}  // namespace glossmill::bench
