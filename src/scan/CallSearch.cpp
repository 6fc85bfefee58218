#include "scan/CallSearch.h"

#include <bit>

#include "text/ByteBlock.h"

namespace glossmill {

namespace {

constexpr std::string_view kWord = "nslocalizedstring";
static_assert(kWord.size() == kCallNameLength);
constexpr std::size_t kPairPlace = 8;  // of "ze", the pair of the word's letters that source code holds least often

/// Exact for what is compared here: only letters come out as lower-case letters.
char lower(char byte) {
  return static_cast<char>(byte | 0x20);
}

bool isWordAt(std::string_view source, std::size_t at) {
  if (source.size() - at < kWord.size()) return false;
  for (std::size_t i = 0; i < kWord.size(); ++i) {
    if (lower(source[at + i]) != kWord[i]) return false;
  }
  return true;
}

/// The place of the next "ze" in any case.
std::size_t findPair(std::string_view source, std::size_t at) {
  const char first = kWord[kPairPlace];
  const char second = kWord[kPairPlace + 1];
  for (; at + ByteBlock::kSize + 1 <= source.size(); at += ByteBlock::kSize) {
    const char* here = source.data() + at;
    const ByteBlock::Mask hits = ByteBlock(here).equalLetter(first) & ByteBlock(here + 1).equalLetter(second);
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  for (; at + 1 < source.size(); ++at) {
    if (lower(source[at]) == first && lower(source[at + 1]) == second) return at;
  }
  return source.size();
}

}  // namespace

std::size_t findLocalizedStringCall(std::string_view source, std::size_t from) {
  std::size_t at = from + kPairPlace;
  while (at < source.size()) {
    at = findPair(source, at);
    if (at == source.size()) break;
    if (isWordAt(source, at - kPairPlace)) return at - kPairPlace;
    ++at;
  }
  return source.size();
}

}  // namespace glossmill
