#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CancelFlag.h"

namespace glossmill {

/// Texts by their places in a list, to be found by what is like them. Built once, on any thread; then any number of
/// threads may ask. A question on 100,000 texts takes a few milliseconds.
class SimilarTexts {
 public:
  struct Found {
    std::size_t place = 0;  ///< in the list, of the first of equal texts
    double likeness = 0;    ///< 1 for the text itself, below 1 for every other

    bool operator==(const Found&) const = default;
  };

  /// Null when it was cancelled.
  static std::unique_ptr<SimilarTexts> of(std::vector<std::string> texts, const CancelFlag& canceled);

  /// Those that are at least so much like the text, the most similar first, then in the order of the list; the text
  /// itself is among them. At most `most`. Of a very long text only the rarer pieces are looked at.
  std::vector<Found> like(std::string_view text, double least, std::size_t most) const;
  const std::string& text(std::size_t place) const { return m_texts[place]; }
  /// All places of the text that stands at this one, in their order.
  std::vector<std::size_t> placesOf(std::size_t place) const;
  std::size_t size() const { return m_texts.size(); }

 private:
  using Number = std::uint32_t;  ///< of a distinct text
  using Grams = std::vector<std::uint32_t>;
  struct Counts {
    std::vector<std::uint32_t> shared;  ///< by number: the pieces in common, at least
    std::size_t unread = 0;             ///< pieces that were not looked at
  };

  explicit SimilarTexts(std::vector<std::string> texts) : m_texts(std::move(texts)) {}
  void numberTexts();
  bool fillBuckets(const CancelFlag& canceled);
  Counts countShared(const Grams& grams) const;
  std::vector<Number> candidates(const Grams& grams, double least, std::size_t most) const;

  std::vector<std::string> m_texts;
  std::vector<Number> m_numbers;            ///< by place
  std::vector<std::uint32_t> m_starts;      ///< by number: the first place
  std::vector<std::uint32_t> m_nexts;       ///< by place: the next place of an equal text, or the end
  std::vector<std::uint32_t> m_gramCounts;  ///< by number
  std::vector<std::uint32_t> m_bucketEnds;  ///< by bucket: where its numbers end
  std::vector<Number> m_members;            ///< the numbers in all buckets
};

}  // namespace glossmill
