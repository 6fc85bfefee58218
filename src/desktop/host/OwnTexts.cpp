#include "desktop/host/OwnTexts.h"

#include <QFile>
#include <algorithm>
#include <optional>

namespace glossmill {

namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : m_rest(text) {}

  /// The next entry; false at the end, and at whatever is no entry.
  bool readEntry(std::string& key, std::string& value) {
    return readQuoted(key) && take('=') && readQuoted(value) && take(';');
  }

 private:
  void skipBlanks() {
    while (!m_rest.empty()) {
      if (m_rest.starts_with("/*")) {
        m_rest.remove_prefix(std::min(m_rest.find("*/"), m_rest.size() - 2) + 2);
      } else if (m_rest.front() == ' ' || m_rest.front() == '\n') {
        m_rest.remove_prefix(1);
      } else {
        return;
      }
    }
  }

  bool take(char wanted) {
    skipBlanks();
    if (!m_rest.starts_with(wanted)) return false;
    m_rest.remove_prefix(1);
    return true;
  }

  bool readQuoted(std::string& text) {
    text.clear();
    if (!take('"')) return false;
    while (!m_rest.empty() && m_rest.front() != '"') text.push_back(takeCharacter());
    return take('"');
  }

  char takeCharacter() {
    const bool escaped = m_rest.front() == '\\' && m_rest.size() > 1;
    const char character = m_rest[escaped ? 1 : 0];
    m_rest.remove_prefix(escaped ? 2 : 1);
    if (!escaped) return character;
    return character == 'n' ? '\n' : character == 't' ? '\t' : character;
  }

  std::string_view m_rest;
};

std::optional<OwnTexts> ownTextsIn(const QString& language) {
  QFile file(QStringLiteral(":/texts/%1.lproj/Localizable.strings").arg(language));
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  return parseOwnTexts(file.readAll().toStdString());
}

}  // namespace

OwnTexts parseOwnTexts(std::string_view text) {
  OwnTexts texts;
  Reader reader(text);
  std::string key;
  std::string value;
  while (reader.readEntry(key, value)) texts.insert_or_assign(key, value);
  return texts;
}

OwnTexts ownTextsFor(const QStringList& languages) {
  for (const QString& language : languages) {
    if (const auto texts = ownTextsIn(language.section(QLatin1Char('-'), 0, 0))) return *texts;
  }
  return ownTextsIn(QStringLiteral("en")).value_or(OwnTexts());
}

}  // namespace glossmill
