#include "xcode/StringsPlaces.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "text/FoldCase.h"

namespace glossmill {

namespace {

using Side = StringsPlace::Side;

enum class SortOrder { FoldedCase, Bytes };

std::string sortKey(std::string_view key, SortOrder order) {
  return order == SortOrder::FoldedCase ? foldCase(key) : std::string(key);
}

/// Nothing when they do not ascend.
std::optional<std::vector<std::string>> sortKeysOf(const StringsDocument& document, SortOrder order) {
  std::vector<std::string> keys;
  keys.reserve(document.entries().size());
  for (const StringsEntry& entry : document.entries()) {
    keys.push_back(sortKey(document.keyOf(entry), order));
    if (keys.size() > 1 && keys.back() < keys[keys.size() - 2]) return std::nullopt;
  }
  return keys;
}

class PlaceSearch {
 public:
  PlaceSearch(const std::vector<std::string_view>& newKeys, const StringsDocument& document, const StringsKeys& keys)
      : m_newKeys(newKeys), m_document(document), m_keys(keys), m_isPlaced(newKeys.size()) {}

  void followDevelopment(const StringsDocument& development);
  void placeOthers();
  std::vector<StringsPlace> take() { return std::move(m_places); }

 private:
  void place(std::size_t key, Side side, std::size_t entry);
  void placeAll(const std::vector<std::size_t>& keys, std::uint32_t previous, std::uint32_t next);
  bool placeSorted(std::vector<std::size_t> keys, SortOrder order);

  const std::vector<std::string_view>& m_newKeys;
  const StringsDocument& m_document;
  const StringsKeys& m_keys;
  std::vector<bool> m_isPlaced;
  std::vector<StringsPlace> m_places;
};

/// Goes through its keys and remembers which of them was the last that this file has, too.
void PlaceSearch::followDevelopment(const StringsDocument& development) {
  std::unordered_map<std::string_view, std::size_t> numbers;
  for (std::size_t key = 0; key < m_newKeys.size(); ++key) numbers.emplace(m_newKeys[key], key);
  std::uint32_t previous = StringsKeys::kNone;
  std::vector<std::size_t> waiting;
  for (const std::uint32_t last : StringsKeys(development).lastEntries()) {
    const std::string key = development.keyOf(development.entries()[last]);
    const std::uint32_t entry = m_keys.lastOf(key);
    if (entry != StringsKeys::kNone) {
      placeAll(waiting, previous, entry);
      waiting.clear();
      previous = entry;
    } else if (const auto number = numbers.find(key); number != numbers.end()) {
      waiting.push_back(number->second);
    }
  }
  placeAll(waiting, previous, StringsKeys::kNone);
}

void PlaceSearch::place(std::size_t key, Side side, std::size_t entry) {
  m_places.push_back({key, side, entry});
  m_isPlaced[key] = true;
}

/// Between two entries of the file, of which either may be missing.
void PlaceSearch::placeAll(const std::vector<std::size_t>& keys, std::uint32_t previous, std::uint32_t next) {
  for (const std::size_t key : keys) {
    if (previous != StringsKeys::kNone) {
      place(key, Side::Behind, previous);
    } else if (next != StringsKeys::kNone) {
      place(key, Side::InFront, next);
    } else if (m_document.entries().empty()) {
      place(key, Side::Alone, 0);
    }
  }
}

void PlaceSearch::placeOthers() {
  std::vector<std::size_t> others;
  for (std::size_t key = 0; key < m_newKeys.size(); ++key) {
    if (!m_isPlaced[key]) others.push_back(key);
  }
  const std::size_t count = m_document.entries().size();
  if (others.empty()) return;
  if (count > 0 && (placeSorted(others, SortOrder::FoldedCase) || placeSorted(others, SortOrder::Bytes))) return;
  for (const std::size_t key : others) {
    if (count == 0) {
      place(key, Side::Alone, 0);
    } else {
      place(key, Side::Behind, count - 1);
    }
  }
}

/// False when the file is in another order.
bool PlaceSearch::placeSorted(std::vector<std::size_t> keys, SortOrder order) {
  const std::optional<std::vector<std::string>> sorted = sortKeysOf(m_document, order);
  if (!sorted) return false;
  std::stable_sort(keys.begin(), keys.end(), [&](std::size_t a, std::size_t b) {
    return sortKey(m_newKeys[a], order) < sortKey(m_newKeys[b], order);
  });
  for (const std::size_t key : keys) {
    const auto behind = std::upper_bound(sorted->begin(), sorted->end(), sortKey(m_newKeys[key], order));
    if (behind == sorted->begin()) {
      place(key, Side::InFront, 0);
    } else {
      place(key, Side::Behind, static_cast<std::size_t>(behind - sorted->begin()) - 1);
    }
  }
  return true;
}

}  // namespace

std::vector<StringsPlace> placesFor(const std::vector<std::string_view>& newKeys, const StringsDocument& document,
                                    const StringsKeys& keys, const StringsDocument* development) {
  PlaceSearch search(newKeys, document, keys);
  if (development) search.followDevelopment(*development);
  search.placeOthers();
  return search.take();
}

}  // namespace glossmill
