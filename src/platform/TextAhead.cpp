#include "platform/TextAhead.h"

#include <system_error>
#include <utility>

namespace glossmill {

void TextAhead::Piece::clear() {
  cutOff.clear();
  text = {};
}

void TextAhead::Piece::add(std::string_view part) {
  if (part.size() > TextReader::kLongestCharacter) {
    text = part;
  } else {
    cutOff += part;
  }
}

void TextAhead::Piece::passOn(const TextDecoder::Sink& sink) const {
  if (!cutOff.empty()) sink(cutOff);
  if (!text.empty()) sink(text);
}

TextAhead::InWork::InWork(TextAhead& owner, TextReader& text) : m_owner(owner) {
  const Lock lock(m_owner.m_mutex);
  m_owner.m_text = &text;
  m_owner.m_made = m_owner.m_taken = 0;
  m_owner.m_isHeld = false;
  m_owner.m_end.reset();
  m_owner.m_problem = nullptr;
}

TextAhead::InWork::~InWork() {
  Lock lock(m_owner.m_mutex);
  m_owner.m_text = nullptr;
  m_owner.m_arrived.wait(lock, [this] { return !m_owner.m_isMaking; });
}

TextAhead::~TextAhead() {
  {
    const Lock lock(m_mutex);
    m_ends = true;
  }
  m_wanted.notify_one();
  if (m_thread.joinable()) m_thread.join();
}

Outcome TextAhead::readPieces(const FileUrl& file, const TextDecoder::Sink& sink) {
  const Result<std::unique_ptr<ByteReader>> opened = m_files.open(file);
  if (!opened) return opened.error();
  TextReader text(*opened.value());
  while (!hasThread()) {
    ++m_windows;
    const Result<bool> more = text.next(m_room, sink);
    if (!more) return more.error();
    if (!more.value()) return Done{};
  }
  return passOnAhead(text, sink);
}

bool TextAhead::hasThread() {
  if (m_thread.joinable()) return true;
  if (m_windows < kWindowsAlone) return false;
  if (!m_processors) m_processors = std::thread::hardware_concurrency();
  if (*m_processors < 2) return false;
  try {
    m_pieces = std::make_unique<std::array<Piece, kPieces>>();
    m_thread = std::thread([this] { run(); });
  } catch (const std::system_error&) {
    m_processors = 1;
  }
  return m_thread.joinable();
}

Outcome TextAhead::passOnAhead(TextReader& text, const TextDecoder::Sink& sink) {
  const InWork inWork(*this, text);
  while (const Piece* piece = nextPiece()) piece->passOn(sink);
  if (m_problem) std::rethrow_exception(m_problem);
  return *m_end;
}

/// Null behind the last one. The thread is woken when half of the pieces are used up, not for each of them.
const TextAhead::Piece* TextAhead::nextPiece() {
  Lock lock(m_mutex);
  if (std::exchange(m_isHeld, false)) ++m_taken;
  if (m_made == m_taken) {
    if (m_end) return nullptr;
    if (m_isMaking) {
      waitForPiece(lock);
    } else {
      makePiece(lock);
    }
  }
  m_isHeld = true;
  const Piece* const piece = &(*m_pieces)[m_taken % kPieces];
  const bool wakes = canMake() && m_made - m_taken <= kPieces / 2;
  lock.unlock();
  if (wakes) m_wanted.notify_one();
  return piece;
}

void TextAhead::waitForPiece(Lock& lock) {
  const std::size_t taken = m_taken;
  lock.unlock();
  m_yield.until([this, taken] { return m_made.load(std::memory_order_acquire) != taken; });
  lock.lock();
  m_arrived.wait(lock, [this] { return m_made != m_taken; });
}

void TextAhead::run() {
  Lock lock(m_mutex);
  while (true) {
    m_wanted.wait(lock, [this] { return m_ends || canMake(); });
    if (m_ends) return;
    makePiece(lock);
  }
}

/// Without the lock while it reads. Whatever happens, one piece more is there then.
void TextAhead::makePiece(Lock& lock) {
  m_isMaking = true;
  Piece& piece = (*m_pieces)[m_made % kPieces];
  TextReader& text = *m_text;
  lock.unlock();
  std::optional<Outcome> end;
  std::exception_ptr problem;
  try {
    piece.clear();
    const Result<bool> more = text.next(piece.room, [&piece](std::string_view part) { piece.add(part); });
    if (!more) end = more.error();
    if (more && !more.value()) end = Done{};
  } catch (...) {
    problem = std::current_exception();
    end = Done{};
  }
  lock.lock();
  m_end = std::move(end);
  m_problem = std::move(problem);
  m_isMaking = false;
  ++m_made;
  m_arrived.notify_one();
}

}  // namespace glossmill
