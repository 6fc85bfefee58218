#include "fuzz/FuzzSupport.h"
#include "strings/CommentRemover.h"
#include "strings/ReferenceCommentRemover.h"
#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

CleanText cleanOf(const std::vector<std::string_view>& pieces) {
  CommentRemover remover;
  CleanText clean;
  for (const std::string_view piece : pieces) remover.feed(piece, clean);
  return clean;
}

bool isSame(const CleanText& a, const CleanText& b) {
  return a.text == b.text && a.quotes == b.quotes && a.lineEnds == b.lineEnds;
}

/// Finds the places anew.
void requireRightPlaces(const CleanText& clean) {
  CleanText expected;
  for (std::size_t place = 0; place < clean.text.size(); ++place) {
    if (clean.text[place] == '"') expected.quotes.push_back(place);
    if (clean.text[place] == '\n') expected.lineEnds.push_back({place, expected.quotes.size()});
  }
  require(clean.quotes == expected.quotes, "every quote is marked");
  require(clean.lineEnds == expected.lineEnds, "every line end is marked");
}

void cleanText(std::string_view text) {
  const CleanText whole = cleanOf({text});
  require(isValidUtf8(whole.text), "clean text is valid UTF-8");
  require(whole.text == removeComments(text), "there is one way to remove comments");
  require(whole.text == ReferenceCommentRemover::remove(text), "clean text is that of the plain rules");
  requireRightPlaces(whole);
  require(isSame(cleanOf(cutInPieces(text)), whole), "pieces give what the whole gives");
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glossmill::Result<std::string> text = glossmill::decodeText(glossmill::asText(data, size));
  if (text) glossmill::cleanText(text.value());
  return 0;
}
