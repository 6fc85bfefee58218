#pragma once

#include <string>

#include "desktop/Desk.h"
#include "timing/Samples.h"

namespace glossmill::bench {

/// What a person does most: going from string to string and from language to language, filtering, typing translations.
class StepTrials {
 public:
  explicit StepTrials(Desk& desk) : m_desk(desk) {}

  void strings(int count);
  void languages();
  void filter(int rounds);
  void typing(int count);

 private:
  void chooseLanguages(const std::string& state);
  void chooseFilter(Qt::Key key, Samples& samples);

  Desk& m_desk;
};

}  // namespace glossmill::bench
