#include "edit/StringsFileWriter.h"

#include <utility>

namespace glossmill {

StringsFileTexts::StringsFileTexts(StringArray records)
    : m_records(std::move(records)), m_translations(m_records.size()) {
  m_headEnds.reserve(m_records.size());
  for (const std::shared_ptr<LocalizeString>& record : m_records) appendHead(*record);
}

void StringsFileTexts::appendHead(const LocalizeString& record) {
  m_heads += "/* ";
  m_heads += record.comment();
  m_heads += " */\n\"";
  m_heads += record.name();
  m_heads += "\" = \"";
  m_headEnds.push_back(m_heads.size());
}

const std::string& StringsFileTexts::text(LanguageCode language) {
  findTranslations(language);
  m_text = "\n";
  std::size_t start = 0;
  for (std::size_t place = 0; place < m_records.size(); ++place) {
    const std::size_t end = m_headEnds[place];
    if (m_translations[place]) {
      m_text.append(m_heads, start, end - start);
      m_text += *m_translations[place];
      m_text += "\"\n\n";
    }
    start = end;
  }
  return m_text;
}

/// The records lie all over the memory; looking for their translations and nothing else lets the processor fetch many
/// of them at a time.
void StringsFileTexts::findTranslations(LanguageCode language) {
  for (std::size_t place = 0; place < m_records.size(); ++place) {
    m_translations[place] = m_records[place]->languagesDict().find(language);
  }
}

std::string stringsFileText(const StringArray& records, LanguageCode language) {
  return StringsFileTexts(records).text(language);
}

}  // namespace glossmill
