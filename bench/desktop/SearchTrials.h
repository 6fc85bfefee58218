#pragma once

#include <QString>
#include <cstddef>

#include "desktop/Desk.h"
#include "timing/Samples.h"

namespace glossmill::bench {

/// Searching letter by letter, in several languages.
class SearchTrials {
 public:
  explicit SearchTrials(Desk& desk) : m_desk(desk) {}

  void run();

 private:
  void searchIn(std::size_t language);
  void typeWord(const QString& word);
  void takeBack(const QString& word);
  void clear();
  QString partOfTranslation();
  void checkFound(const QString& wanted);
  std::size_t stringsWith(const QString& wanted);

  Desk& m_desk;
  Samples m_firstLetters;
  Samples m_furtherLetters;
  Samples m_lettersTakenBack;
  Samples m_clearings;
  std::size_t m_searches = 0;
  std::size_t m_rightSearches = 0;
};

}  // namespace glossmill::bench
