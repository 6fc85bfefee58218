#include "search/SimilarTexts.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "search/TextGrams.h"

namespace glossmill {

namespace {

constexpr std::size_t kBuckets = std::size_t{1} << 17;
/// So many members of buckets are looked at for one question, which bounds its time.
constexpr std::size_t kMostVisits = 3'000'000;
/// The pieces of so many more texts than are wanted are compared.
constexpr std::size_t kSpare = 32;
constexpr std::size_t kLooksForCancel = 1024;
constexpr double kNotQuite = 0.999;

std::size_t bucketOf(std::uint32_t gram) {
  return (gram * 2654435761U) >> (32 - 17);
}

double likenessOf(std::size_t shared, std::size_t one, std::size_t other) {
  const std::size_t both = one + other;
  return both == 0 ? 0 : 2.0 * static_cast<double>(shared) / static_cast<double>(both);
}

}  // namespace

std::unique_ptr<SimilarTexts> SimilarTexts::of(std::vector<std::string> texts, const CancelFlag& canceled) {
  std::unique_ptr<SimilarTexts> similar(new SimilarTexts(std::move(texts)));
  similar->numberTexts();
  if (!similar->fillBuckets(canceled)) return nullptr;
  return similar;
}

void SimilarTexts::numberTexts() {
  const auto end = static_cast<std::uint32_t>(m_texts.size());
  std::unordered_map<std::string_view, Number> known;
  std::vector<std::uint32_t> lasts;  // by number
  known.reserve(m_texts.size());
  m_numbers.reserve(m_texts.size());
  m_nexts.assign(m_texts.size(), end);
  for (std::uint32_t place = 0; place < end; ++place) {
    const auto [found, isNew] = known.try_emplace(m_texts[place], static_cast<Number>(m_starts.size()));
    m_numbers.push_back(found->second);
    if (isNew) {
      m_starts.push_back(place);
      lasts.push_back(place);
    } else {
      m_nexts[std::exchange(lasts[found->second], place)] = place;
    }
  }
}

/// Two passes over the pieces of all texts: how many each bucket gets, then which.
bool SimilarTexts::fillBuckets(const CancelFlag& canceled) {
  Grams all;
  m_gramCounts.reserve(m_starts.size());
  m_bucketEnds.assign(kBuckets, 0);
  for (const std::uint32_t start : m_starts) {
    if (m_gramCounts.size() % kLooksForCancel == 0 && canceled.isSet()) return false;
    const Grams grams = gramsOf(m_texts[start]);
    m_gramCounts.push_back(static_cast<std::uint32_t>(grams.size()));
    all.insert(all.end(), grams.begin(), grams.end());
    for (const std::uint32_t gram : grams) ++m_bucketEnds[bucketOf(gram)];
  }
  std::uint32_t begin = 0;
  for (std::uint32_t& end : m_bucketEnds) begin += std::exchange(end, begin);
  m_members.resize(all.size());
  auto gram = all.begin();
  for (Number number = 0; number < m_gramCounts.size(); ++number) {
    if (number % kLooksForCancel == 0 && canceled.isSet()) return false;
    for (std::uint32_t i = 0; i < m_gramCounts[number]; ++i) m_members[m_bucketEnds[bucketOf(*gram++)]++] = number;
  }
  return true;
}

SimilarTexts::Counts SimilarTexts::countShared(const Grams& grams) const {
  const auto beginOf = [this](std::size_t bucket) { return bucket == 0 ? 0 : m_bucketEnds[bucket - 1]; };
  const auto sizeOf = [&](std::size_t bucket) { return m_bucketEnds[bucket] - beginOf(bucket); };
  std::vector<std::size_t> buckets;
  buckets.reserve(grams.size());
  for (const std::uint32_t gram : grams) buckets.push_back(bucketOf(gram));
  std::sort(buckets.begin(), buckets.end(), [&](std::size_t a, std::size_t b) { return sizeOf(a) < sizeOf(b); });

  Counts counts;
  counts.shared.assign(m_starts.size(), 0);
  std::size_t visits = 0;
  for (const std::size_t bucket : buckets) {
    visits += sizeOf(bucket);
    if (visits > kMostVisits) {
      ++counts.unread;
      continue;
    }
    for (std::uint32_t at = beginOf(bucket); at < m_bucketEnds[bucket]; ++at) ++counts.shared[m_members[at]];
  }
  return counts;
}

/// The texts that may be like the one with these pieces, the likeliest first. What shares a bucket may still not share
/// a piece.
std::vector<SimilarTexts::Number> SimilarTexts::candidates(const Grams& grams, double least, std::size_t most) const {
  const Counts counts = countShared(grams);
  std::vector<std::pair<double, Number>> chances;
  for (Number number = 0; number < counts.shared.size(); ++number) {
    if (counts.shared[number] == 0) continue;
    const double chance = likenessOf(counts.shared[number] + counts.unread, grams.size(), m_gramCounts[number]);
    if (chance >= least) chances.emplace_back(-chance, number);
  }
  const std::size_t count = std::min(chances.size(), most + kSpare);
  const auto end = chances.begin() + static_cast<std::ptrdiff_t>(count);
  std::partial_sort(chances.begin(), end, chances.end());
  std::vector<Number> numbers;
  numbers.reserve(count);
  for (auto chance = chances.begin(); chance != end; ++chance) numbers.push_back(chance->second);
  return numbers;
}

std::vector<SimilarTexts::Found> SimilarTexts::like(std::string_view text, double least, std::size_t most) const {
  const Grams grams = gramsOf(text);
  std::vector<Found> found;
  for (const Number number : candidates(grams, least, most)) {
    const std::string& other = m_texts[m_starts[number]];
    const double common = other == text ? 1 : std::min(likeness(grams, gramsOf(other)), kNotQuite);
    if (common >= least) found.push_back({m_starts[number], common});
  }
  std::sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
    return a.likeness != b.likeness ? a.likeness > b.likeness : a.place < b.place;
  });
  if (found.size() > most) found.resize(most);
  return found;
}

std::vector<std::size_t> SimilarTexts::placesOf(std::size_t place) const {
  std::vector<std::size_t> places;
  for (std::size_t at = m_starts[m_numbers[place]]; at < m_texts.size(); at = m_nexts[at]) places.push_back(at);
  return places;
}

}  // namespace glossmill
