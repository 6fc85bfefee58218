#pragma once

#include <QTranslator>

#include "desktop/host/OwnTexts.h"

namespace glossmill {

/// Gives the texts of the interface files in the user's language, from the same table as every other text of the
/// program.
class OwnTranslator : public QTranslator {
 public:
  explicit OwnTranslator(OwnTexts texts) : m_texts(std::move(texts)) {}

  bool isEmpty() const override { return m_texts.empty(); }
  QString translate(const char* context, const char* sourceText, const char* disambiguation, int n) const override;

 private:
  const OwnTexts m_texts;
};

}  // namespace glossmill
