#include "exchange/PoReader.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

#include "exchange/PoEntry.h"
#include "exchange/PoEscapes.h"
#include "text/ByteSearch.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::string_view kBlanks = " \t\r\f\v";

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

/// The value of a line such as "Language: de" in the header; empty where there is none.
std::string_view headerValue(std::string_view header, std::string_view name) {
  while (!header.empty()) {
    const std::size_t end = findByte(header, '\n', 0);
    const std::string_view line = header.substr(0, end);
    if (line.starts_with(name) && line.substr(name.size()).starts_with(':')) {
      return trimmed(line.substr(name.size() + 1));
    }
    header.remove_prefix(std::min(end + 1, header.size()));
  }
  return {};
}

bool isUtf8Name(std::string_view charset) {
  return charset.empty() || charset == "UTF-8" || charset == "utf-8" || charset == "CHARSET" || charset == "ASCII" ||
         charset == "US-ASCII";
}

/// Table and key of a context as poContext() makes it; no table for another one.
std::pair<std::string, std::string> tableAndKey(std::string_view context) {
  const std::size_t colon = context.find(':');
  if (colon == context.npos) return {"", std::string(context)};
  std::string table;
  for (std::size_t at = 0; at < colon; ++at) {
    const bool isColon = context.substr(at, 3) == "%3A";
    const bool isPercent = context.substr(at, 3) == "%25";
    table += isColon ? ':' : context[at];
    if (isColon || isPercent) at += 2;
  }
  return {table, std::string(context.substr(colon + 1))};
}

/// Goes through the lines of a PO file.
class Reader {
 public:
  explicit Reader(std::string_view text) : m_text(text) { m_document.languages = {""}; }

  Result<ExchangeDocument> read() {
    while (!m_text.empty()) {
      const std::size_t end = findByte(m_text, '\n', 0);
      const std::string_view line = trimmed(m_text.substr(0, end));
      m_text.remove_prefix(std::min(end + 1, m_text.size()));
      ++m_line;
      if (!takeLine(line)) return error();
    }
    if (!endEntry()) return error();
    return std::move(m_document);
  }

 private:
  bool takeLine(std::string_view line) {
    if (line.empty()) return true;
    if (line.starts_with('#')) return takeComment(line.substr(1));
    if (line.starts_with('"')) return m_field ? takeText(line) : fail("A text belongs to nothing.");
    return takeKeyword(line);
  }

  bool takeComment(std::string_view comment) {
    if (comment.starts_with('~') || comment.starts_with('|')) return true;
    if (m_entry.isComplete() && !endEntry()) return false;
    if (comment.starts_with('.')) {
      if (!m_entry.comment.empty()) m_entry.comment += '\n';
      m_entry.comment += trimmed(comment.substr(1));
    }
    if (comment.starts_with(',') && comment.find("fuzzy") != comment.npos) m_entry.isFuzzy = true;
    return true;
  }

  bool takeKeyword(std::string_view line) {
    const std::size_t end = line.find_first_of(" \t\"");
    const std::string_view keyword = line.substr(0, end);
    const bool begins = keyword == "msgctxt" || (keyword == "msgid" && !(m_field == &m_entry.context));
    if (begins && m_entry.isComplete() && !endEntry()) return false;
    m_field = m_entry.fieldOf(keyword);
    if (!m_field) return fail("It begins with no word that PO files know.");
    if (*m_field) return fail("The entry has the same part twice.");
    if (m_entry.line == 0) m_entry.line = m_line;
    m_field->emplace();
    return takeText(trimmed(line.substr(keyword.size())));
  }

  /// Of a line, in its quotes.
  bool takeText(std::string_view quoted) {
    if (quoted.size() < 2 || quoted.front() != '"' || quoted.back() != '"') return fail("The quotes do not fit.");
    const std::string_view inside = quoted.substr(1, quoted.size() - 2);
    if (!hasPlainEnd(inside)) return fail("The quotes do not fit.");
    const std::optional<std::string> text = poTextOf(inside);
    if (!text) return fail("It holds an escape that is unknown, or that makes no UTF-8.");
    **m_field += *text;
    return true;
  }

  /// Whether each quote inside has its backslash, and the last backslash something behind it.
  static bool hasPlainEnd(std::string_view inside) {
    for (std::size_t at = 0; at < inside.size(); ++at) {
      if (inside[at] == '"') return false;
      if (inside[at] == '\\' && ++at == inside.size()) return false;
    }
    return true;
  }

  bool endEntry() {
    PoEntry entry = std::exchange(m_entry, PoEntry());
    m_field = nullptr;
    if (entry.line == 0) return true;
    if (!entry.isComplete()) {
      m_line = entry.line;
      return fail("The entry has no id or no translation.");
    }
    if (!entry.context && entry.id->empty()) return takeHeader(entry);
    if (entry.isPlural()) {
      m_document.rejected.push_back({entry.line, "Entries with plurals are not read."});
      return true;
    }
    m_document.units.push_back(unitOf(std::move(entry)));
    return true;
  }

  bool takeHeader(const PoEntry& entry) {
    const std::string_view header = entry.text.has_value() ? std::string_view(*entry.text) : std::string_view();
    const std::string_view type = headerValue(header, "Content-Type");
    const std::size_t charset = type.find("charset=");
    if (charset != type.npos && !isUtf8Name(trimmed(type.substr(charset + 8)))) {
      m_line = entry.line;
      return fail("The file is not in UTF-8, says its header; save it in UTF-8.");
    }
    m_document.languages = {std::string(headerValue(header, "Language"))};
    m_document.sourceLanguage = headerValue(header, "X-Source-Language");
    m_document.project = headerValue(header, "Project-Id-Version");
    return true;
  }

  static ExchangeUnit unitOf(PoEntry entry) {
    ExchangeUnit unit;
    unit.line = entry.line;
    if (entry.context) {
      std::tie(unit.table, unit.key) = tableAndKey(*entry.context);
    } else {
      unit.key = *entry.id;
    }
    unit.source = std::move(*entry.id);
    unit.comment = std::move(entry.comment);
    unit.isUnsure = entry.isFuzzy;
    if (!entry.text->empty()) unit.texts.push_back({0, std::move(*entry.text)});
    return unit;
  }

  bool fail(std::string_view sentence) {
    m_error = sentence;
    return false;
  }

  Error error() const { return {"line " + std::to_string(m_line) + ": " + m_error}; }

  std::string_view m_text;
  std::uint32_t m_line = 0;
  PoEntry m_entry;
  std::optional<std::string>* m_field = nullptr;  ///< of the entry, to which further lines belong
  ExchangeDocument m_document;
  std::string m_error;
};

}  // namespace

Result<ExchangeDocument> readPo(const std::string& text) {
  return Reader(text).read();
}

}  // namespace glossmill
