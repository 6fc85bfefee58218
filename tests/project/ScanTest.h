#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/AppDelegate.h"
#include "support/TestHost.h"

namespace glossmill {

using Lines = std::vector<std::string>;

/// The program with its window open and no project yet. Paths on the disk are relative to /P, which holds the project
/// "Harbour.app".
class ScanTest : public testing::Test {
 protected:
  explicit ScanTest(EmbeddedBundle::StringsTable strings = {}) : host(std::move(strings)), application(host.parts()) {
    host.interfaces.setLogObserver([this](std::string_view log) { logChanged(log); });
    host.interfaces.setProgressObserver(
        [this](const HeadlessLongTimeSheet& sheet) { sheetChanged(sheet.title.stringValue); });
    application.openProjectWindow();
  }
  void TearDown() override { EXPECT_FALSE(m_action) << "never logged: " << m_awaited; }

  // ---- The disk ----

  void addFile(std::string_view path, std::string_view bytes = {}) { host.files.addFile(inP(path), bytes); }
  void addDirectory(std::string_view path) { host.files.addDirectory(inP(path)); }
  /// A package whose project file is this text.
  void addPackage(std::string_view projectFile) { addFile("Harbour.app/A.xcodeproj/project.pbxproj", projectFile); }
  static std::string inP(std::string_view path) { return "/P/" + std::string(path); }

  // ---- Opening ----

  /// Chooses the directory; the scan has begun, but nothing of it has reached the main thread.
  bool begin(std::string_view directory = "Harbour.app") {
    host.panels.willChoose(inP(directory));
    return project().openProject(FileUrl());
  }
  void open(std::string_view directory = "Harbour.app") {
    EXPECT_TRUE(begin(directory));
    host.runUntilIdle();
  }
  /// Does something on the main thread as soon as the log ends in this message.
  void whenLogged(std::string_view message, std::function<void()> action) {
    m_awaited = message;
    m_action = std::move(action);
  }
  void cancelWhenLogged(std::string_view message) {
    whenLogged(message, [this] { project().longTimeCanceled(); });
  }

  // ---- What is there afterwards ----

  ProjectWindowController& project() { return *application.projectWindowController(); }
  HeadlessProjectWindow& window() { return *host.interfaces.projectWindow(); }
  HeadlessLongTimeSheet& sheet() { return *host.interfaces.longTimeSheet(); }
  bool sheetIsUp() { return host.sheets.isUp(sheet().window); }
  Lines systemLog() { return host.systemLog.lines(); }

  Lines log() {
    Lines messages;
    const LogWindowController* controller = application.logWindowController();
    for (std::size_t i = 0; controller && i < controller->messageCount(); ++i) {
      messages.emplace_back(controller->message(i));
    }
    return messages;
  }

  Lines keys() {
    Lines keys;
    for (const auto& record : project().stringList()) keys.push_back(record->name());
    return keys;
  }

  Lines files() {
    Lines paths;
    for (const FileUrl& file : project().fileList()) paths.push_back(file.path());
    return paths;
  }

  Lines codes() {
    Lines codes;
    for (const auto& language : *project().languagesList()) codes.push_back(language->iso639());
    return codes;
  }

  /// "none" without an entry.
  std::string translation(std::size_t record, std::string_view code) {
    return std::string(project().stringList().at(record)->languagesDict().find(LanguageCode(code)).value_or("none"));
  }

  void expectNothingOpen() {
    EXPECT_FALSE(project().opened());
    EXPECT_FALSE(project().changed());
    EXPECT_EQ(keys(), Lines());
    EXPECT_EQ(project().filteredStringList().size(), 0U);
    EXPECT_EQ(files(), Lines());
    EXPECT_EQ(codes(), Lines());
  }

  TestHost host;
  AppDelegate application;
  Lines titles;                                     ///< of the long-time sheet, one after the other
  std::function<void(const std::string&)> onTitle;  ///< called with each of them

 private:
  void sheetChanged(const std::string& title) {
    if (!titles.empty() && titles.back() == title) return;
    titles.push_back(title);
    if (onTitle) onTitle(title);
  }

  void logChanged(std::string_view log) {
    if (!m_action || !log.ends_with(m_awaited + "\n")) return;
    const std::function<void()> action = std::exchange(m_action, {});
    action();
  }

  std::string m_awaited;
  std::function<void()> m_action;
};

}  // namespace glossmill
