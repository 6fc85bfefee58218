#include "platform/ReadAhead.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <span>
#include <system_error>
#include <utility>

#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

/// Within the grain of a disk's clock a file can be written twice and keep its stamp; no disk's is coarser than this.
constexpr std::int64_t kSettledSeconds = 3;

}  // namespace

/// Gives the bytes of a place, which is free again afterwards.
class ReadAhead::Reader : public ByteReader {
 public:
  Reader(ReadAhead& owner, Place& place)
      : m_owner(owner), m_place(place), m_rest(place.bytes.data(), place.stamp.size) {}
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
  ~Reader() override { m_owner.give(m_place); }

  Result<std::size_t> read(std::span<char> buffer) override {
    const std::size_t count = std::min(buffer.size(), m_rest.size());
    std::copy_n(m_rest.begin(), count, buffer.begin());
    m_rest = m_rest.subspan(count);
    return count;
  }
  std::optional<std::string_view> textAtHand() override { return m_place.text; }

 private:
  ReadAhead& m_owner;
  Place& m_place;
  std::span<const char> m_rest;
};

ReadAhead::~ReadAhead() {
  {
    const Lock lock(m_mutex);
    m_ends = true;
  }
  m_wanted.notify_one();
  if (m_thread.joinable()) m_thread.join();
}

Result<std::vector<DirectoryEntry>> ReadAhead::list(const FileUrl& directory) {
  if (m_thread.joinable()) rouseThread();
  return m_files.list(directory);
}

/// The next directory's files are expected soon, and waking a thread takes longer than listing a directory.
void ReadAhead::rouseThread() {
  Lock lock(m_mutex);
  if (!hasNothingLeft()) return;
  m_isRoused = true;
  lock.unlock();
  m_wanted.notify_one();
}

bool ReadAhead::hasNothingLeft() const {
  return m_expected.empty() && std::none_of(m_places.begin(), m_places.end(), [](const Place& place) {
           return place.state == State::Reading || place.state == State::Ready;
         });
}

/// Whatever was expected before and not opened is not wanted any more.
void ReadAhead::expect(std::vector<FileUrl>&& files) {
  m_filesAlone += files.size();
  if (!startThread()) return;
  Lock lock(m_mutex);
  for (Place& place : m_places) {
    if (place.state == State::Ready) place.state = State::Free;
    if (place.state == State::Reading) place.state = State::Dropped;
  }
  m_expectations.fetch_add(1, std::memory_order_release);
  m_expected.assign(std::make_move_iterator(files.begin()), std::make_move_iterator(files.end()));
  wakeThread(std::move(lock));
}

bool ReadAhead::startThread() {
  if (m_thread.joinable()) return true;
  if (m_filesAlone < kFilesAlone) return false;
  if (!m_processors) m_processors = std::thread::hardware_concurrency();
  if (*m_processors < 2) return false;
  try {
    m_thread = std::thread([this] { run(); });
  } catch (const std::system_error&) {
    m_processors = 1;
  }
  return m_thread.joinable();
}

Result<std::unique_ptr<ByteReader>> ReadAhead::open(const FileUrl& file) {
  if (!m_thread.joinable()) return m_files.open(file);
  Place* const place = placeOf(file);
  if (!place) return m_files.open(file);
  rouseThread();
  auto reader = std::make_unique<Reader>(*this, *place);
  if (!isStill(*place)) return m_files.open(file);
  return std::unique_ptr<ByteReader>(std::move(reader));
}

/// The place that holds the file, from now on open; null when there is none. Then nobody is to read it any more.
ReadAhead::Place* ReadAhead::placeOf(const FileUrl& file) {
  const Lock lock(m_mutex);
  for (Place& place : m_places) {
    const bool isReady = place.state == State::Ready;
    if ((!isReady && place.state != State::Reading) || !(place.file == file)) continue;
    place.state = isReady ? State::Open : State::Dropped;
    return isReady ? &place : nullptr;
  }
  forget(file);
  return nullptr;
}

void ReadAhead::forget(const FileUrl& file) {
  const auto found = std::find(m_expected.begin(), m_expected.end(), file);
  if (found != m_expected.end()) m_expected.erase(m_expected.begin(), found + 1);
}

bool ReadAhead::isStill(const Place& place) {
  const Result<std::optional<FileStamp>> now = m_disk.stampOf(place.file);
  return now && now.value() == place.stamp;
}

void ReadAhead::give(Place& place) {
  Lock lock(m_mutex);
  place.state = State::Free;
  wakeThread(std::move(lock));
}

/// When half of the places are free, and not for each of them.
void ReadAhead::wakeThread(Lock lock) {
  const auto free =
      std::count_if(m_places.begin(), m_places.end(), [](const Place& place) { return place.state == State::Free; });
  const bool wakes = !m_expected.empty() && 2 * static_cast<std::size_t>(free) >= kPlaces;
  lock.unlock();
  if (wakes) m_wanted.notify_one();
}

ReadAhead::Place* ReadAhead::freePlace() {
  const auto found =
      std::find_if(m_places.begin(), m_places.end(), [](const Place& place) { return place.state == State::Free; });
  return found == m_places.end() ? nullptr : &*found;
}

void ReadAhead::run() {
  Lock lock(m_mutex);
  while (true) {
    waitForWork(lock);
    if (m_ends) return;
    Place& place = *freePlace();
    place.state = State::Reading;
    place.file = takeNext();
    lock.unlock();
    const bool isRead = read(place);
    lock.lock();
    place.state = isRead && place.state == State::Reading ? State::Ready : State::Free;
  }
}

void ReadAhead::waitForWork(Lock& lock) {
  while (!m_ends && !canRead()) {
    m_wanted.wait(lock, [this] { return m_ends || m_isRoused || canRead(); });
    if (!std::exchange(m_isRoused, false)) continue;
    const std::size_t before = m_expectations.load(std::memory_order_relaxed);
    if (canRead()) return;
    lock.unlock();
    m_yield.until([this, before] { return m_expectations.load(std::memory_order_acquire) != before; });
    lock.lock();
  }
}

/// The first is left to the caller while nothing is ready, since that is what the caller wants now.
FileUrl ReadAhead::takeNext() {
  const bool isAhead =
      std::any_of(m_places.begin(), m_places.end(), [](const Place& place) { return place.state == State::Ready; });
  const auto next = m_expected.begin() + (isAhead || m_expected.size() == 1 ? 0 : 1);
  FileUrl file = std::move(*next);
  m_expected.erase(next);
  return file;
}

bool ReadAhead::read(Place& place) try { return readBytes(place) && decode(place); } catch (const std::bad_alloc&) {
  return false;
}

/// The stamp is taken first: whoever writes the file from then on gives it another one.
bool ReadAhead::readBytes(Place& place) {
  const Result<std::optional<FileStamp>> stamp = m_disk.stampOf(place.file);
  if (!stamp || !stamp.value() || stamp.value()->size > kLargestFile || !isSettled(*stamp.value())) return false;
  place.stamp = *stamp.value();
  if (place.bytes.size() <= place.stamp.size) place.bytes.resize(place.stamp.size + 1);
  const Result<std::unique_ptr<ByteReader>> opened = m_files.open(place.file);
  if (!opened) return false;
  std::size_t filled = 0;
  while (filled < place.bytes.size()) {
    const Result<std::size_t> got = opened.value()->read(std::span(place.bytes).subspan(filled));
    if (!got) return false;
    if (got.value() == 0) return filled == place.stamp.size;
    filled += got.value();
  }
  return false;
}

/// What is no text is read once more, by whoever opens it, and has the same error as ever.
bool ReadAhead::decode(Place& place) {
  const std::string_view bytes(place.bytes.data(), place.stamp.size);
  const DetectedEncoding detected = detectEncoding(bytes);
  place.text = bytes.substr(detected.markLength);
  if (detected.encoding == TextEncoding::Utf8) return isValidUtf8(place.text);
  Result<std::string> decoded = decodeText(bytes);
  if (!decoded) return false;
  place.decoded = std::move(decoded.value());
  place.text = place.decoded;
  return true;
}

bool ReadAhead::isSettled(const FileStamp& stamp) const {
  constexpr std::int64_t kSecond = 1'000'000'000;
  return stamp.changed / kSecond + kSettledSeconds <= m_disk.now();
}

}  // namespace glossmill
