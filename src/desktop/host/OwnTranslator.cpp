#include "desktop/host/OwnTranslator.h"

#include "desktop/host/QtText.h"

namespace glossmill {

QString OwnTranslator::translate(const char*, const char* sourceText, const char*, int) const {
  const auto found = sourceText ? m_texts.find(std::string_view(sourceText)) : m_texts.end();
  return found == m_texts.end() ? QString() : toQt(found->second);
}

}  // namespace glossmill
