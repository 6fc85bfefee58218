#pragma once

#include <array>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/BriefYield.h"
#include "platform/Files.h"
#include "platform/TextReader.h"

namespace glossmill {

/// Reads text files in pieces, one file after the other. While the caller looks at a piece, a thread of this object
/// reads and decodes the next ones, a few at most; a piece that is wanted before the thread has begun it is read by the
/// caller. The thread starts when a few windows were read without it, and only where it has a processor for itself. To
/// be used by one thread.
class TextAhead {
 public:
  /// `files` outlives this.
  explicit TextAhead(FileReading& files, std::optional<unsigned> processors = std::nullopt)
      : m_files(files), m_processors(processors) {}
  TextAhead(const TextAhead&) = delete;
  TextAhead& operator=(const TextAhead&) = delete;
  ~TextAhead();

  /// Opens the file and passes its text on, its encoding detected; a view is valid during the call only. The error
  /// names the reason, not the file; what `sink` got before is then to be thrown away. Nothing is read any more when
  /// this returns or throws.
  Outcome readPieces(const FileUrl& file, const TextDecoder::Sink& sink);

  static constexpr std::size_t kWindowsAlone = 8;

 private:
  static constexpr std::size_t kPieces = 8;
  using Lock = std::unique_lock<std::mutex>;

  /// The text of one window, and in front of it a character that the window before cut off.
  struct Piece {
    TextReader::Room room;
    std::string cutOff;
    std::string_view text;

    void clear();
    void add(std::string_view part);
    void passOn(const TextDecoder::Sink& sink) const;
  };

  /// A file is being read from here to the end of the block.
  class InWork {
   public:
    InWork(TextAhead& owner, TextReader& text);
    ~InWork();

   private:
    TextAhead& m_owner;
  };

  bool hasThread();
  Outcome passOnAhead(TextReader& text, const TextDecoder::Sink& sink);
  const Piece* nextPiece();
  void waitForPiece(Lock& lock);
  void run();
  bool canMake() const { return m_text && !m_end && !m_isMaking && m_made - m_taken < kPieces; }
  void makePiece(Lock& lock);

  FileReading& m_files;
  std::optional<unsigned> m_processors;  ///< nothing until somebody asks the system
  std::size_t m_windows = 0;             ///< that were read without the thread
  TextReader::Room m_room;
  BriefYield m_yield;
  bool m_isHeld = false;  ///< the caller looks at a piece

  std::mutex m_mutex;
  std::condition_variable m_wanted;                      ///< the thread sleeps on this
  std::condition_variable m_arrived;                     ///< and the caller on this
  TextReader* m_text = nullptr;                          ///< of the file in work; used by whoever makes a piece
  std::unique_ptr<std::array<Piece, kPieces>> m_pieces;  ///< in a ring
  std::atomic<std::size_t> m_made = 0;                   ///< pieces of the file
  std::size_t m_taken = 0;                               ///< that the caller is done with
  std::optional<Outcome> m_end;                          ///< of the file, which the last piece that was made belongs to
  std::exception_ptr m_problem;                          ///< what was thrown there
  bool m_isMaking = false;
  bool m_ends = false;
  std::thread m_thread;
};

}  // namespace glossmill
