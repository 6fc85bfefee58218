#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "strings/CommentRemover.h"
#include "strings/MarkedText.h"
#include "strings/ReferenceCommentRemover.h"
#include "support/Ship.h"

namespace glossmill {
namespace {

/// The pieces of `text` when bit i of `cuts` cuts it after byte i.
std::vector<std::string_view> cutAt(std::string_view text, unsigned cuts) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    if ((cuts >> at & 1U) == 0) continue;
    pieces.push_back(text.substr(start, at + 1 - start));
    start = at + 1;
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

TEST(CommentRemoverInPieces, GivesTheSameInEverySplit) {
  const std::vector<std::string> texts = {
      "\"a\\\"//\"//b\nc",
      "/***/ab*/c\"\n",
      "\"\\\\\"/*\"*/a\n",
      "a/b/*c\n*/\"d\"\n",
      std::string("/") + kShip + "a/\n\"",
      std::string("/**") + kShip + "*/" + kShip,
      "//\"a\n/\"b\"/*\n*",
      "/\xE2\x82\xAC//\xE2\x82\xAC\n\"",
  };
  for (const std::string& text : texts) {
    const std::string expected = ReferenceCommentRemover::remove(text);
    for (unsigned cuts = 0; cuts < 1U << (text.size() - 1); ++cuts) {
      SCOPED_TRACE(testing::Message() << text << " cut by " << cuts);
      expectClean(cutAt(text, cuts), expected);
      if (HasFailure()) return;
    }
  }
}

class RandomText {
 public:
  std::string next() {
    static const std::vector<std::string> letters = {"\"", "/", "*", "\\", "\n", " ", "a", kShip};
    std::string text;
    for (std::size_t left = m_random() % 24; left > 0; --left) text += letters[m_random() % letters.size()];
    return text;
  }

 private:
  std::mt19937 m_random{20240611};
};

TEST(CommentRemoverInPieces, AgreesWithThePlainRulesOnRandomTexts) {
  RandomText random;
  for (int round = 0; round < 20000; ++round) {
    const std::string text = random.next();
    SCOPED_TRACE(text);
    expectClean({text}, ReferenceCommentRemover::remove(text));
    if (HasFailure()) return;
  }
}

TEST(CommentRemoverInPieces, AgreesWithThePlainRulesOnRandomTextsInTwoPieces) {
  RandomText random;
  for (int round = 0; round < 2000; ++round) {
    const std::string text = random.next();
    const std::string expected = ReferenceCommentRemover::remove(text);
    for (std::size_t cut = 0; cut <= text.size(); ++cut) {
      SCOPED_TRACE(testing::Message() << text << " cut at " << cut);
      expectClean({std::string_view(text).substr(0, cut), std::string_view(text).substr(cut)}, expected);
      if (HasFailure()) return;
    }
  }
}

TEST(CommentRemoverInPieces, AgreesWithThePlainRulesByteByByte) {
  RandomText random;
  for (int round = 0; round < 5000; ++round) {
    const std::string text = random.next();
    std::vector<std::string_view> bytes;
    for (std::size_t at = 0; at < text.size(); ++at) bytes.push_back(std::string_view(text).substr(at, 1));
    SCOPED_TRACE(text);
    expectClean(bytes, ReferenceCommentRemover::remove(text));
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace glossmill
