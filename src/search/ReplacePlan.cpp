#include "search/ReplacePlan.h"

#include <algorithm>
#include <utility>

namespace glossmill {

Result<ReplacePlan> ReplacePlan::of(StringArray records, const ReplaceWish& wish) {
  Result<TextFinder> finder = TextFinder::of(wish.find);
  if (!finder) return finder.error();
  ReplacementText text = ReplacementText::plain(wish.replacement);
  if (wish.find.isExpression) {
    Result<ReplacementText> read = ReplacementText::ofExpression(wish.replacement, finder.value().groups());
    if (!read) return read.error();
    text = std::move(read.value());
  }
  return ReplacePlan(std::move(records), wish, std::move(finder.value()), std::move(text));
}

ReplacePlan::ReplacePlan(StringArray records, const ReplaceWish& wish, TextFinder finder, ReplacementText replacement)
    : m_records(std::move(records)),
      m_languages(wish.languages),
      m_table(wish.table),
      m_finder(std::move(finder)),
      m_replacement(std::move(replacement)) {}

bool ReplacePlan::goOn(std::size_t records) {
  const std::size_t end = std::min(m_next + std::min(records, m_records.size()), m_records.size());
  for (; m_next < end; ++m_next) look(m_records[m_next]);
  return m_next < m_records.size();
}

void ReplacePlan::look(const std::shared_ptr<LocalizeString>& record) {
  const TableRow* const row = record->tableRow();
  if (m_table && (!row || row->table->id != *m_table)) return;
  for (const LanguageCode language : m_languages) {
    const auto text = record->languagesDict().find(language);
    if (text && !text->empty()) look(record, language, std::string(*text));
  }
}

void ReplacePlan::look(const std::shared_ptr<LocalizeString>& record, LanguageCode language, const std::string& text) {
  const std::vector<ExpressionMatch> matches = m_finder.find(text);
  if (matches.empty()) return;
  Replacement change;
  std::string after;
  std::size_t done = 0;
  for (const ExpressionMatch& match : matches) {
    after.append(text, done, match.range.begin - done);
    const std::size_t begin = after.size();
    m_replacement.appendTo(after, text, match);
    change.found.push_back(match.range);
    change.put.push_back({begin, after.size() - begin});
    done = match.range.end();
  }
  after.append(text, done);
  if (after == text) return;
  change.edit = {record, language, text, after.empty() ? std::nullopt : std::optional(std::move(after))};
  m_replacements.push_back(std::move(change));
}

std::vector<Edit> editsThatFit(const std::vector<Replacement>& replacements) {
  std::vector<Edit> edits;
  for (const Replacement& replacement : replacements) {
    const Edit& edit = replacement.edit;
    if (edit.record->languagesDict().find(edit.language) == edit.before) edits.push_back(edit);
  }
  return edits;
}

}  // namespace glossmill
