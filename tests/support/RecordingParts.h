#pragma once

#include <deque>
#include <mutex>

#include "app/NewsQueue.h"
#include "platform/Host.h"
#include "support/CallRecorder.h"

namespace glossmill {

// The parts of a host that pass on to other ones what they are asked, and write it down. Questions that change nothing
// are not written down, but for those to the disk.

class RecordingFiles : public Files {
 public:
  RecordingFiles(CallRecorder& calls, Files& inner) : m_calls(calls), m_inner(inner) {}
  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override;
  EntryKind kindOf(const FileUrl& url) override;
  std::optional<FileIdentity> identityOf(const FileUrl& url) override { return m_inner.identityOf(url); }
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override;
  Outcome createDirectory(const FileUrl& directory, bool intermediate) override;
  Outcome writeText(const FileUrl& file, std::string_view text) override;
  Outcome writeTextPieces(const FileUrl& file, const TextPieces& next) override;

 private:
  CallRecorder& m_calls;
  Files& m_inner;
};

/// Writes down only what reaches the user's own files.
class RecordingSaveDisk : public SaveDisk {
 public:
  RecordingSaveDisk(CallRecorder& calls, SaveDisk& inner) : m_calls(calls), m_inner(inner) {}
  Result<FileUrl> resolve(const FileUrl& url) override { return m_inner.resolve(url); }
  Result<std::optional<FileStamp>> stampOf(const FileUrl& file) override { return m_inner.stampOf(file); }
  Result<std::unique_ptr<PreparedWrite>> prepare(const FileUrl& file, const BytePieces& bytes,
                                                 const WriteLimits& limits) override;
  Outcome createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) override;
  std::vector<FileUrl> abandonedWrites(const FileUrl& directory) override { return m_inner.abandonedWrites(directory); }
  Outcome rename(const FileUrl& from, const FileUrl& to) override { return m_inner.rename(from, to); }
  Outcome remove(const FileUrl& url) override { return m_inner.remove(url); }
  Result<FileUrl> stateDirectory() override { return m_inner.stateDirectory(); }
  Outcome createPrivateDirectory(const FileUrl& directory) override {
    return m_inner.createPrivateDirectory(directory);
  }
  Outcome writePrivate(const FileUrl& file, const BytePieces& bytes) override {
    return m_inner.writePrivate(file, bytes);
  }
  Result<std::unique_ptr<GrowingFile>> openGrowing(const FileUrl& file) override { return m_inner.openGrowing(file); }
  Result<std::unique_ptr<DirectoryLock>> tryLock(const FileUrl& directory) override {
    return m_inner.tryLock(directory);
  }
  std::int64_t processId() const override { return m_inner.processId(); }
  std::int64_t now() const override { return m_inner.now(); }

 private:
  CallRecorder& m_calls;
  SaveDisk& m_inner;
};

class RecordingDefaults : public UserDefaults {
 public:
  RecordingDefaults(CallRecorder& calls, UserDefaults& inner) : m_calls(calls), m_inner(inner) {}
  std::optional<long> integerForKey(std::string_view key) override { return m_inner.integerForKey(key); }
  void setInteger(std::string_view key, long value) override;
  std::optional<std::vector<std::string>> stringArrayForKey(std::string_view key) override;
  void setStringArray(std::string_view key, const std::vector<std::string>& values) override;
  void synchronize() override;

 private:
  CallRecorder& m_calls;
  UserDefaults& m_inner;
};

class RecordingNotificationCenter : public NotificationCenter {
 public:
  RecordingNotificationCenter(CallRecorder& calls, NotificationCenter& inner) : m_calls(calls), m_inner(inner) {}
  void addObserver(const void* observer, std::string_view name, Handler handler) override;
  void removeObserver(const void* observer) override;
  void post(std::string_view name, const void* object) override;

 private:
  CallRecorder& m_calls;
  NotificationCenter& m_inner;
};

/// Holds back background jobs until they are released, so that what the main thread goes on to do comes first.
class RecordingThreads : public Threads {
 public:
  RecordingThreads(CallRecorder& calls, Threads& inner) : m_calls(calls), m_inner(inner) {}
  RecordingThreads(const RecordingThreads&) = delete;
  RecordingThreads& operator=(const RecordingThreads&) = delete;
  ~RecordingThreads() override { EXPECT_TRUE(m_held.empty()) << "a background job was never run"; }
  bool isMainThread() const override { return m_inner.isMainThread(); }
  void performInBackground(std::function<void()> job) override;
  void performOnMainThreadAndWait(const std::function<void()>& work) override {
    m_inner.performOnMainThreadAndWait(work);
  }
  /// Starts the oldest job that is held back; false when there is none.
  bool release();

 private:
  CallRecorder& m_calls;
  Threads& m_inner;
  std::mutex m_mutex;
  std::deque<std::function<void()>> m_held;
};

class RecordingPanels : public Panels {
 public:
  RecordingPanels(CallRecorder& calls, Panels& inner) : m_calls(calls), m_inner(inner) {}
  std::optional<FileUrl> runOpenPanel(const OpenPanelRequest& request) override;
  void beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) override;
  AlertAnswer runAlert(const AlertRequest& request) override;

 private:
  CallRecorder& m_calls;
  Panels& m_inner;
};

/// For windows of RecordingInterfaceFiles only.
class RecordingSheets : public Sheets {
 public:
  RecordingSheets(CallRecorder& calls, Sheets& inner) : m_calls(calls), m_inner(inner) {}
  void beginSheet(Window& sheet, std::function<void()> didEnd) override;
  void endSheet(Window& sheet) override;

 private:
  CallRecorder& m_calls;
  Sheets& m_inner;
};

class RecordingInterfaceFiles : public InterfaceFiles {
 public:
  RecordingInterfaceFiles(CallRecorder& calls, InterfaceFiles& inner) : m_calls(calls), m_inner(inner) {}
  Interface<ProjectWindowOutlets> loadProjectWindow(ProjectWindowController& owner) override;
  Interface<LongTimeSheetOutlets> loadLongTimeSheet(ProjectWindowController& owner) override;
  Interface<LogWindowOutlets> loadLogWindow(LogWindowController& owner) override;
  Interface<LanguageWindowOutlets> loadLanguageWindow(std::string_view name, LanguageWindowController& owner) override;
  Interface<SelectLanguageWindowOutlets> loadSelectLanguageWindow(SelectLanguageWindowController& owner) override;

 private:
  CallRecorder& m_calls;
  InterfaceFiles& m_inner;
};

class RecordingMenu : public Menu {
 public:
  RecordingMenu(CallRecorder& calls, Menu& inner) : m_calls(calls), m_inner(inner) {}
  void removeAllItems() override;
  void addItem(MenuItem item) override;

 private:
  CallRecorder& m_calls;
  Menu& m_inner;
};

class LineRecordingSystemLog : public SystemLog {
 public:
  LineRecordingSystemLog(CallRecorder& calls, SystemLog& inner) : m_calls(calls), m_inner(inner) {}
  void write(const Message& message) override;

 private:
  CallRecorder& m_calls;
  SystemLog& m_inner;
};

class RecordingApplication : public Application {
 public:
  RecordingApplication(CallRecorder& calls, Application& inner) : m_calls(calls), m_inner(inner) {}
  void terminate() override;

 private:
  CallRecorder& m_calls;
  Application& m_inner;
};

/// In the place of the application delegate: writes down what the project asks of it, and does nothing.
class RecordingServices : public ApplicationServices {
 public:
  explicit RecordingServices(CallRecorder& calls) : m_calls(calls) {}
  void logText(const Message& message) override { m_calls.add("log", message.text()); }
  void clearLog() override { m_calls.add("application", "clear the log"); }
  void saveRecent(std::string_view path) override;
  /// News is no call of the window: it is looked at as it stands.
  NewsQueue& news() override { return m_news; }

 private:
  CallRecorder& m_calls;
  NewsQueue m_news;
};

}  // namespace glossmill
