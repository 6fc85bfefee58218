#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

/// A kind of file that a panel offers.
struct FileTypeGroup {
  std::string title;
  std::vector<std::string> types;  ///< extensions; the first is the usual one

  bool operator==(const FileTypeGroup&) const = default;
};

/// What an open panel offers.
struct OpenPanelRequest {
  std::string title;
  std::string prompt;  ///< text of the confirming button; empty: the platform's own
  bool canCreateDirectories = false;
  bool canChooseDirectories = false;
  bool canChooseFiles = true;
  bool allowsMultipleSelection = false;
  std::vector<std::string> fileTypes;    ///< extensions; empty: all
  std::vector<FileTypeGroup> moreTypes;  ///< offered beside them
  FileUrl directory;                     ///< where it opens; empty: the platform's choice
};

struct SavePanelRequest {
  std::string proposedName;
  std::vector<FileTypeGroup> types;  ///< to choose from; the first is that of the proposed name. Empty: no choice
};

enum class AlertAnswer { Default, Alternate, Other };

/// A question with up to three buttons; an empty title means that there is no such button.
struct AlertRequest {
  std::string message;
  std::string informativeText;
  std::string defaultButton;
  std::string alternateButton;
  std::string otherButton;
  /// What it is about, when something could not be written.
  struct Cause {
    FileUrl file;
    Error error;
  };
  std::optional<Cause> cause = std::nullopt;
  AlertAnswer escape = AlertAnswer::Other;  ///< what leaving the question stands for
};

/// Panels and alerts. Main thread.
class Panels {
 public:
  virtual ~Panels() = default;
  /// Application-modal; nothing when it was cancelled.
  virtual std::optional<FileUrl> runOpenPanel(const OpenPanelRequest& request) = 0;
  /// A sheet on the project window; `done` hears nothing when it was cancelled. May return before `done` is called.
  virtual void beginSavePanel(const SavePanelRequest& request, std::function<void(std::optional<FileUrl>)> done) = 0;
  /// Application-modal.
  virtual AlertAnswer runAlert(const AlertRequest& request) = 0;
};

}  // namespace glossmill
