#include "support/RecordingParts.h"

#include <utility>

#include "support/RecordingControls.h"

namespace glossmill {

namespace {

std::string listText(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
  return "[" + all + "]";
}

std::string_view nameOf(AlertAnswer answer) {
  if (answer == AlertAnswer::Default) return "default";
  return answer == AlertAnswer::Alternate ? "alternate" : "other";
}

/// Tells of the first look into the file.
class RecordingReader : public ByteReader {
 public:
  RecordingReader(CallRecorder& calls, std::string path, std::unique_ptr<ByteReader> inner)
      : m_calls(calls), m_path(std::move(path)), m_inner(std::move(inner)) {}
  Result<std::size_t> read(std::span<char> buffer) override {
    if (!m_path.empty()) m_calls.add("files", "read " + std::exchange(m_path, ""));
    return m_inner->read(buffer);
  }

 private:
  CallRecorder& m_calls;
  std::string m_path;
  std::unique_ptr<ByteReader> m_inner;
};

RecordingWindow& recordingWindow(Window& window) {
  return dynamic_cast<RecordingWindow&>(window);
}

}  // namespace

Result<std::vector<DirectoryEntry>> RecordingFiles::list(const FileUrl& directory) {
  m_calls.add("files", "list " + directory.path());
  return m_inner.list(directory);
}

EntryKind RecordingFiles::kindOf(const FileUrl& url) {
  m_calls.add("files", "look for " + url.path());
  return m_inner.kindOf(url);
}

Result<std::unique_ptr<ByteReader>> RecordingFiles::open(const FileUrl& file) {
  m_calls.add("files", "open " + file.path());
  Result<std::unique_ptr<ByteReader>> reader = m_inner.open(file);
  if (!reader) return reader;
  return std::unique_ptr<ByteReader>(
      std::make_unique<RecordingReader>(m_calls, file.path(), std::move(reader.value())));
}

Outcome RecordingFiles::createDirectory(const FileUrl& directory, bool intermediate) {
  m_calls.addOnMainThread("files", "create " + directory.path() + (intermediate ? " and those above" : ""));
  return m_inner.createDirectory(directory, intermediate);
}

Outcome RecordingFiles::writeText(const FileUrl& file, std::string_view text) {
  m_calls.addOnMainThread("files", "write " + file.path());
  return m_inner.writeText(file, text);
}

Outcome RecordingFiles::writeTextPieces(const FileUrl& file, const TextPieces& next) {
  m_calls.addOnMainThread("files", "write " + file.path());
  return m_inner.writeTextPieces(file, next);
}

namespace {

class RecordingWrite : public PreparedWrite {
 public:
  RecordingWrite(CallRecorder& calls, FileUrl file, std::unique_ptr<PreparedWrite> inner)
      : m_calls(calls), m_file(std::move(file)), m_inner(std::move(inner)) {}
  const FileUrl& target() const override { return m_inner->target(); }
  const FileUrl& temporary() const override { return m_inner->temporary(); }
  const std::optional<FileStamp>& former() const override { return m_inner->former(); }
  Outcome putInPlace() override {
    m_calls.addOnMainThread("files", "replace " + m_file.path());
    return m_inner->putInPlace();
  }

 private:
  CallRecorder& m_calls;
  FileUrl m_file;
  std::unique_ptr<PreparedWrite> m_inner;
};

}  // namespace

Result<std::unique_ptr<PreparedWrite>> RecordingSaveDisk::prepare(const FileUrl& file, const BytePieces& bytes,
                                                                  const WriteLimits& limits) {
  m_calls.addOnMainThread("files", "prepare " + file.path());
  Result<std::unique_ptr<PreparedWrite>> prepared = m_inner.prepare(file, bytes, limits);
  if (!prepared) return prepared;
  return std::unique_ptr<PreparedWrite>(std::make_unique<RecordingWrite>(m_calls, file, std::move(prepared.value())));
}

Outcome RecordingSaveDisk::createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) {
  m_calls.addOnMainThread("files", "create " + directory.path() + (intermediate ? " and those above" : ""));
  return m_inner.createDirectory(directory, intermediate, limits);
}

void RecordingDefaults::setInteger(std::string_view key, long value) {
  m_calls.addOnMainThread("defaults", std::string(key) + " = " + std::to_string(value));
  m_inner.setInteger(key, value);
}

std::optional<std::vector<std::string>> RecordingDefaults::stringArrayForKey(std::string_view key) {
  return m_inner.stringArrayForKey(key);
}

void RecordingDefaults::setStringArray(std::string_view key, const std::vector<std::string>& values) {
  m_calls.addOnMainThread("defaults", std::string(key) + " = " + listText(values));
  m_inner.setStringArray(key, values);
}

void RecordingDefaults::synchronize() {
  m_calls.addOnMainThread("defaults", "synchronize");
  m_inner.synchronize();
}

void RecordingNotificationCenter::addObserver(const void* observer, std::string_view name, Handler handler) {
  m_calls.addOnMainThread("notifications", "add an observer of " + std::string(name));
  m_inner.addObserver(observer, name, std::move(handler));
}

void RecordingNotificationCenter::removeObserver(const void* observer) {
  m_calls.addOnMainThread("notifications", "remove an observer");
  m_inner.removeObserver(observer);
}

void RecordingNotificationCenter::post(std::string_view name, const void* object) {
  m_calls.addOnMainThread("notifications", "post " + std::string(name));
  m_inner.post(name, object);
}

void RecordingThreads::performInBackground(std::function<void()> job) {
  m_calls.addOnMainThread("background", "start a job");
  const std::lock_guard lock(m_mutex);
  m_held.push_back(std::move(job));
}

bool RecordingThreads::release() {
  std::function<void()> job;
  {
    const std::lock_guard lock(m_mutex);
    if (m_held.empty()) return false;
    job = std::move(m_held.front());
    m_held.pop_front();
  }
  m_inner.performInBackground(std::move(job));
  return true;
}

std::optional<FileUrl> RecordingPanels::runOpenPanel(const OpenPanelRequest& request) {
  m_calls.addOnMainThread("panels", "open panel " + inQuotes(request.title));
  return m_inner.runOpenPanel(request);
}

void RecordingPanels::beginSavePanel(const SavePanelRequest& request,
                                     std::function<void(std::optional<FileUrl>)> done) {
  m_calls.addOnMainThread("panels", "save panel " + inQuotes(request.proposedName));
  m_inner.beginSavePanel(request, [this, done = std::move(done)](const std::optional<FileUrl>& file) {
    m_calls.addOnMainThread("panels", file ? "save as " + file->path() : "save panel cancelled");
    done(file);
  });
}

AlertAnswer RecordingPanels::runAlert(const AlertRequest& request) {
  m_calls.addOnMainThread("panels", "alert " + inQuotes(request.message));
  const AlertAnswer answer = m_inner.runAlert(request);
  m_calls.addOnMainThread("panels", "alert answered with the " + std::string(nameOf(answer)) + " button");
  return answer;
}

void RecordingSheets::beginSheet(Window& sheet, std::function<void()> didEnd) {
  RecordingWindow& window = recordingWindow(sheet);
  m_calls.addOnMainThread("sheets", "begin " + window.name());
  m_inner.beginSheet(window.inner(), [this, name = window.name(), didEnd = std::move(didEnd)] {
    m_calls.addOnMainThread("sheets", "did end " + name);
    if (didEnd) didEnd();
  });
}

void RecordingSheets::endSheet(Window& sheet) {
  RecordingWindow& window = recordingWindow(sheet);
  m_calls.addOnMainThread("sheets", "end " + window.name());
  m_inner.endSheet(window.inner());
}

void RecordingMenu::removeAllItems() {
  m_calls.addOnMainThread("recent menu", "remove all items");
  m_inner.removeAllItems();
}

void RecordingMenu::addItem(MenuItem item) {
  m_calls.addOnMainThread("recent menu", item.isSeparator ? "add a separator" : "add " + inQuotes(item.title));
  m_inner.addItem(std::move(item));
}

void LineRecordingSystemLog::write(const Message& message) {
  m_calls.add("system log", message.text());
  m_inner.write(message);
}

void RecordingApplication::terminate() {
  m_calls.addOnMainThread("application", "terminate");
  m_inner.terminate();
}

void RecordingServices::saveRecent(std::string_view path) {
  m_calls.addOnMainThread("application", "save recent " + std::string(path));
}

}  // namespace glossmill
