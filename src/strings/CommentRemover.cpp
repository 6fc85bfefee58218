#include "strings/CommentRemover.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

#include "text/ByteBlock.h"
#include "text/ByteSearch.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool startsSurrogatePair(char byte) {
  return static_cast<unsigned char>(byte) >= 0xF0;
}

/// One piece on its way through the remover. A class of this file alone, so that the compiler can make one loop of it.
///
/// It writes behind the clean text. There are never more characters than the piece has, but for one replacement, when
/// the piece before ended in a slash and this one holds only the first bytes of a character; and copying by blocks may
/// write up to one block too much, which what follows overwrites.
class PiecePass {
 public:
  using State = CommentRemover::State;

  PiecePass(std::string_view piece, State state, char previous, CleanText& clean)
      : m_clean(clean), m_piece(piece), m_state(state), m_previous(previous) {
    const std::size_t length = clean.text.size();
    clean.text.resize(length + piece.size() + kReplacementCharacter.size() + ByteBlock::kSize);
    m_next = clean.text.data() + length;
  }

  /// The state behind the piece.
  State run() {
    while (m_at < m_piece.size()) step();
    m_clean.text.resize(place());
    return m_state;
  }

 private:
  void step();
  void code();
  void string();
  void lineComment();
  void blockComment();
  void afterStar();
  void afterSlash();
  void swallowedRest();

  std::size_t place() const { return static_cast<std::size_t>(m_next - m_clean.text.data()); }
  void putQuote() {
    m_clean.quotes.push_back(place());
    *m_next++ = '"';
  }
  void putLineEnd() {
    m_clean.lineEnds.push_back({place(), m_clean.quotes.size()});
    *m_next++ = '\n';
  }
  void putUpToMark();

  CleanText& m_clean;
  const std::string_view m_piece;
  std::size_t m_at = 0;
  char* m_next;
  State m_state;
  const char m_previous;  ///< the last character of the piece before
};

void PiecePass::step() {
  switch (m_state) {
    case State::Code:
      return code();
    case State::String:
      return string();
    case State::LineComment:
      return lineComment();
    case State::BlockComment:
      return blockComment();
    case State::AfterSlash:
      return afterSlash();
    case State::AfterStar:
      return afterStar();
    case State::SwallowedRest:
      return swallowedRest();
  }
}

/// Between strings there are only a few characters, so they are taken one by one. The places are kept in variables: a
/// written character could be any member for all that the compiler knows.
void PiecePass::code() {
  const char* at = m_piece.data() + m_at;
  const char* const end = m_piece.data() + m_piece.size();
  char* next = m_next;
  while (at != end && *at != '"' && *at != '/' && *at != '\n') *next++ = *at++;
  m_next = next;
  m_at = static_cast<std::size_t>(at - m_piece.data());
  if (at == end) return;
  ++m_at;
  if (*at == '\n') {
    putLineEnd();
  } else if (*at == '"') {
    putQuote();
    m_state = State::String;
  } else {
    m_state = State::AfterSlash;
  }
}

/// One quote or line end at a time. The character before a quote is looked up in the input, where it belongs to the
/// same string.
void PiecePass::string() {
  putUpToMark();
  if (m_at == m_piece.size()) return;
  const char previous = m_at == 0 ? m_previous : m_piece[m_at - 1];
  if (m_piece[m_at++] == '\n') {
    putLineEnd();
    return;
  }
  putQuote();
  if (previous != '\\') m_state = State::Code;
}

/// Copies up to the next quote or line end.
void PiecePass::putUpToMark() {
  char* next = m_next;
  std::size_t at = m_at;
  for (; at + ByteBlock::kSize <= m_piece.size(); at += ByteBlock::kSize) {
    const ByteBlock block(m_piece.data() + at);
    std::memcpy(next, m_piece.data() + at, ByteBlock::kSize);
    const ByteBlock::Mask hits = block.equalEither('"', '\n');
    if (hits != 0) {
      const auto before = static_cast<std::size_t>(std::countr_zero(hits));
      m_next = next + before;
      m_at = at + before;
      return;
    }
    next += ByteBlock::kSize;
  }
  while (at < m_piece.size() && m_piece[at] != '"' && m_piece[at] != '\n') *next++ = m_piece[at++];
  m_next = next;
  m_at = at;
}

/// The line feed goes with the comment, which joins the next line to what stands before it.
void PiecePass::lineComment() {
  m_at = findByte(m_piece, '\n', m_at);
  if (m_at == m_piece.size()) return;
  m_state = State::Code;
  ++m_at;
}

void PiecePass::blockComment() {
  m_at = findByte(m_piece, '*', m_at);
  if (m_at == m_piece.size()) return;
  m_state = State::AfterStar;
  ++m_at;
}

void PiecePass::afterStar() {
  m_state = m_piece[m_at++] == '/' ? State::Code : State::BlockComment;
}

/// Takes one UTF-16 unit: half of a surrogate pair leaves U+FFFD for its other half.
void PiecePass::afterSlash() {
  const char swallowed = m_piece[m_at++];
  if (swallowed == '*') {
    m_state = State::BlockComment;
    return;
  }
  if (swallowed == '/') {
    m_state = State::LineComment;
    return;
  }
  if (startsSurrogatePair(swallowed)) {
    m_next = std::copy(kReplacementCharacter.begin(), kReplacementCharacter.end(), m_next);
  }
  m_state = State::SwallowedRest;
}

void PiecePass::swallowedRest() {
  while (m_at < m_piece.size() && isContinuation(m_piece[m_at])) ++m_at;
  if (m_at < m_piece.size()) m_state = State::Code;
}

}  // namespace

void CommentRemover::feed(std::string_view piece, CleanText& clean) {
  if (piece.empty()) return;
  m_state = PiecePass(piece, m_state, m_previous, clean).run();
  m_previous = piece.back();
}

std::string removeComments(std::string_view text) {
  CommentRemover remover;
  CleanText clean;
  remover.feed(text, clean);
  return std::move(clean.text);
}

}  // namespace glossmill
