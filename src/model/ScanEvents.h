#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

class Language;
struct Problem;

/// What a call in a source lacks that was not taken.
enum class CallRejection {
  NoParenthesis,    ///< no "(" follows its name
  Unbalanced,       ///< the file ends before the parentheses balance
  NoKey,            ///< no @-literal between the parentheses
  UnclosedKey,      ///< no closing quote before the parentheses balance
  NoComma,          ///< behind the key
  NoComment,        ///< no @-literal behind the comma
  UnclosedComment,  ///< no closing quote before the parentheses balance
  Canceled,         ///< nothing: the scan was cancelled while the call was looked at
};
inline constexpr std::size_t kCallRejections = 8;

// What happens while a project is read, one struct an event. References and views are valid while it is told.

struct PackageFound {
  const FileUrl& package;
};
struct NoPackageFound {};
/// A directory that could not be listed; told once for each.
struct DirectoryUnread {
  const FileUrl& directory;
  const Error& error;
};
/// So many directories were entered through links that this one and others behind links were left out.
struct LinksCutOff {
  const FileUrl& directory;
};
struct ProjectFileUnread {
  const FileUrl& file;
  const Error& error;
};
/// A language's directory has a name of former times, and the language gets its code.
struct OldLanguageName {
  std::string_view directoryName;
  std::string_view code;
};
/// Told before the language is given its file.
struct StringsFileFound {
  const Language& language;
  const FileUrl& file;
};
struct SourceBegins {
  const FileUrl& file;
};
struct SourceUnread {
  const FileUrl& file;
  const Error& error;
};
struct CallRejected {
  const FileUrl& file;
  std::string_view excerpt;  ///< the source from the call's name on, at most 80 UTF-16 units
  CallRejection reason;
};
struct StringsFileMissing {
  const Language& language;
};
struct StringsFileBegins {
  const FileUrl& file;
};
/// From now on the file may be read; it begins when its turn comes.
struct StringsFileExpected {
  const FileUrl& file;
};
struct StringsFileUnread {
  const FileUrl& file;
  const Error& error;
};
/// The file was read; what follows are its lines.
struct LinesCounted {
  const FileUrl& file;
  std::int64_t lines;
};
struct EntryRejected {
  const FileUrl& file;
  std::string_view text;  ///< from where on the line makes no sense
  std::int64_t line;      ///< from 1, in the text without comments
};
struct EntryWithoutMatch {
  const FileUrl& file;
  std::string_view key;
  std::int64_t line;  ///< from 1, in the text without comments
};

/// The end of a strings file that could be read.
struct StringsFileRead {
  const FileUrl& file;
  std::size_t entries;  ///< that were taken, repetitions of a key among them
};

/// Of xcode's rules, which tell nothing of calls and entries one by one.
struct ProblemFound {
  const Problem& problem;
};

using ScanEvent = std::variant<PackageFound, NoPackageFound, DirectoryUnread, LinksCutOff, ProjectFileUnread,
                               OldLanguageName, StringsFileFound, SourceBegins, SourceUnread, CallRejected,
                               StringsFileMissing, StringsFileBegins, StringsFileUnread, LinesCounted, EntryRejected,
                               EntryWithoutMatch, StringsFileRead, ProblemFound, StringsFileExpected>;

/// Hears of what happens while a project is read: at once, in its order, on the thread that reads.
class ScanListener {
 public:
  virtual ~ScanListener() = default;
  virtual void happened(const ScanEvent& event) = 0;
};

}  // namespace glossmill
