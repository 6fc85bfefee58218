#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace glossmill {

class LocalizeString;

/// Remembers one folded text for each record, for a search that asks for all of them in the same order with every
/// letter that is typed. A record that comes out of order costs folding from there on anew.
class FoldedTexts {
 public:
  using TextOf = std::function<std::string(const LocalizeString&)>;

  explicit FoldedTexts(TextOf textOf) : m_textOf(std::move(textOf)) {}

  /// Valid until the next call.
  std::string_view of(const LocalizeString& record);
  bool isEmpty() const { return m_entries.empty(); }
  /// Folds the text of the record that will be asked for after all that are known.
  void append(const LocalizeString& record, std::string_view text);
  /// To be called before records go away, or when all of their texts may have changed.
  void forget();
  void forget(const LocalizeString& record);

 private:
  struct Entry {
    const LocalizeString* record = nullptr;
    std::size_t start = 0;  ///< in m_texts
    std::size_t length = 0;
    bool isOutdated = false;
  };

  void store(Entry& entry, std::string_view text);

  TextOf m_textOf;
  std::vector<Entry> m_entries;
  std::string m_texts;
  std::size_t m_next = 0;  ///< the entry that is probably asked for next
};

}  // namespace glossmill
