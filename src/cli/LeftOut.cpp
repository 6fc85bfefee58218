#include "cli/LeftOut.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "cli/DisplayText.h"
#include "cli/JsonValues.h"
#include "cli/TextTable.h"
#include "host/Paths.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostNames = 20;

const std::vector<FileFindings>& findings(const ProjectSession& session) {
  return session.project().scanReport().files();
}

bool isUndecodable(const FileFindings& file) {
  return file.unread && file.unread->kind == ErrorKind::Undecodable;
}

std::string_view roleText(FileRole role) {
  switch (role) {
    case FileRole::ProjectFile:
      return "project file";
    case FileRole::Source:
      return "source";
    case FileRole::StringsFile:
      return "strings file";
    case FileRole::Directory:
      return "directory";
    case FileRole::Unknown:
      break;
  }
  return "unknown";
}

std::size_t rejectedCalls(const FileFindings& file) {
  return std::accumulate(file.rejectedCalls.begin(), file.rejectedCalls.end(), std::size_t{0});
}

std::string nameOf(const ProjectSession& session, const FileFindings& file) {
  const FileUrl& directory = session.project().projectDirectory();
  if (file.file == directory) return ".";
  return printableLine(shownPath(directory, file.file));
}

/// "2 files could not be decoded:" and a line for each of them.
std::string namedText(const ProjectSession& session, const std::vector<const FileFindings*>& files,
                      std::string_view noun, std::string_view what) {
  if (files.empty()) return {};
  std::string text = counted(files.size(), noun).append(" could not be ").append(what) + ":\n";
  const std::size_t named = session.console().isVerbose() ? files.size() : std::min(files.size(), kMostNames);
  for (std::size_t at = 0; at < named; ++at) {
    text += "  " + nameOf(session, *files[at]) + ": " + printableLine(files[at]->unread->sentence) + "\n";
  }
  if (named < files.size()) text += "  and " + std::to_string(files.size() - named) + " more, named by --verbose\n";
  return text;
}

std::string unreadText(const ProjectSession& session) {
  std::vector<const FileFindings*> unreadable;
  std::vector<const FileFindings*> undecodable;
  for (const FileFindings& file : findings(session)) {
    if (file.unread) (isUndecodable(file) ? undecodable : unreadable).push_back(&file);
  }
  return namedText(session, unreadable, "place", "read completely") +
         namedText(session, undecodable, "file", "decoded");
}

std::string countText(std::size_t count, std::string_view noun, std::string_view one, std::string_view many) {
  if (count == 0) return {};
  return counted(count, noun).append(count == 1 ? one : many) + "\n";
}

std::string reasonText(const FileFindings& file) {
  std::vector<std::string> reasons;
  if (file.unread) reasons.push_back(file.unread->sentence);
  const std::size_t calls = rejectedCalls(file);
  if (calls != 0) reasons.push_back(counted(calls, "call") + " rejected");
  if (file.rejectedEntries != 0) reasons.push_back(counted(file.rejectedEntries, "line") + " rejected");
  if (file.unmatchedEntries != 0) reasons.push_back(counted(file.unmatchedEntries, "key") + " without a match");
  std::string text;
  for (const std::string& reason : reasons) text += (text.empty() ? "" : ", ") + reason;
  return text;
}

}  // namespace

std::string leftOutSummary(const ProjectSession& session) {
  const ScanTotals totals = session.project().scanReport().totals();
  const std::string text =
      unreadText(session) +
      countText(totals.rejectedCalls, "call", " in the sources was rejected.", " in the sources were rejected.") +
      countText(totals.rejectedEntries, "line", " of the strings files was rejected.",
                " of the strings files were rejected.") +
      countText(totals.unmatchedEntries, "key", " of the strings files has no match in the sources.",
                " of the strings files have no match in the sources.");
  return text.empty() ? text : "\n" + text;
}

std::string leftOutTable(const ProjectSession& session) {
  if (findings(session).empty()) return {};
  TextTable table({TextTable::Align::Left, TextTable::Align::Left});
  table.addRow({{"Left out of", Paint::Heading}, {"What", Paint::Heading}});
  for (const FileFindings& file : findings(session)) table.addRow({{nameOf(session, file)}, {reasonText(file)}});
  return "\n" + table.text(session.console());
}

Json leftOutJson(const ProjectSession& session, const FileFindings& file) {
  const Json reason = !file.unread ? Json() : Json(isUndecodable(file) ? "undecodable" : "unread");
  return {{"file", jsonPath(session, file.file)},
          {"kind", roleText(file.role)},
          {"reason", reason},
          {"message", file.unread ? Json(file.unread->sentence) : Json()},
          {"rejectedCalls", rejectedCalls(file)},
          {"rejectedEntries", file.rejectedEntries},
          {"unmatchedEntries", file.unmatchedEntries}};
}

}  // namespace glossmill
