#include "project/Recovery.h"

#include <set>
#include <tuple>

#include "project/WrittenPlaces.h"

namespace glossmill {

namespace {

RecoverableEdit::Fit fitOf(const RecoverableEdit& edit, const std::set<std::string>& codes) {
  if (!codes.contains(edit.edit.language)) return RecoverableEdit::Fit::NoLanguage;
  if (!edit.record) return RecoverableEdit::Fit::NoString;
  return edit.now == edit.edit.before ? RecoverableEdit::Fit::Applies : RecoverableEdit::Fit::Changed;
}

}  // namespace

std::vector<RecoverableEdit> recoverableEdits(const std::vector<JournalEdit>& edits, const RecordsByPlace& records,
                                              const LanguageArray& languages) {
  std::set<std::string> codes;
  for (const std::shared_ptr<Language>& language : languages) codes.insert(language->iso639());
  std::set<std::tuple<std::string, std::string, std::string, std::optional<std::string>>> seen;
  std::vector<RecoverableEdit> found;
  for (const JournalEdit& edit : edits) {
    RecoverableEdit one{edit, RecoverableEdit::Fit::Applies, records.find(edit.table, edit.key), std::nullopt};
    one.now = textNow(one.record.get(), edit.language);
    const bool isThere = one.now == edit.after;
    if (isThere || !seen.emplace(edit.table, edit.key, edit.language, edit.after).second) continue;
    one.fit = fitOf(one, codes);
    found.push_back(std::move(one));
  }
  return found;
}

}  // namespace glossmill
