#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/AppDelegate.h"
#include "support/TestHost.h"

namespace glossmill {

/// A project on the in-memory disk, and the program that works on it: first what is on the disk, then open(), then what
/// a user does. The project directory is /x/App, its languages and its one source lie directly in it.
class TestProject {
 public:
  static constexpr const char* kDirectory = "/x/App";

  explicit TestProject(EmbeddedBundle::StringsTable strings = {});

  // ---- On the disk, before open() ----

  /// One call in the source; text as it stands between the quotes.
  void addString(std::string_view key, std::string_view comment = {});
  /// A language with this strings file.
  void addLanguage(std::string_view code, std::string_view stringsFile = {});
  /// A language that has only its directory.
  void addBareLanguage(std::string_view code);

  // ---- What a user does ----

  /// Launches the program, or uses the open command when it runs, and chooses the project directory.
  void open();
  void select(std::string_view key, std::string_view code);
  /// Types a translation over that of the selected string in the selected language.
  void type(std::string_view text);
  void chooseFilter(int index);

  // ---- What is there afterwards ----

  ProjectWindowController& project() { return *application.projectWindowController(); }
  HeadlessProjectWindow& window() { return *host.interfaces.projectWindow(); }
  HeadlessLongTimeSheet& sheet() { return *host.interfaces.longTimeSheet(); }
  bool sheetIsUp() { return host.sheets.isUp(sheet().window); }
  /// Null when the string list has no such record.
  std::shared_ptr<LocalizeString> record(std::string_view key);
  std::shared_ptr<Language> language(std::string_view code);
  /// Nothing when there is no such entry, or no such record.
  std::optional<std::string> translation(std::string_view key, std::string_view code);
  /// Leaves the project without anything to save.
  void setTranslation(std::string_view key, std::string_view code, std::string_view text);
  /// The keys of the string list in its order.
  std::vector<std::string> keys();
  /// Of the rows that the string table shows, in its order.
  std::vector<std::string> shownKeys();
  /// The bytes of a language's strings file; nothing when there is none.
  std::optional<std::string> savedFile(std::string_view code);
  std::vector<std::string> alertMessages() const;

  /// Called on the main thread after each change of the long-time sheet, also during the scan.
  std::function<void(const HeadlessLongTimeSheet&)> onProgress;

  TestHost host;
  AppDelegate application;

 private:
  std::string m_source;
};

/// "/x/App/" and the name.
std::string inProject(std::string_view name);
/// The strings file of a language of the project.
std::string stringsFileOf(std::string_view code);

}  // namespace glossmill
