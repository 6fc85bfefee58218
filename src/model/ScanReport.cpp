#include "model/ScanReport.h"

#include <string>
#include <unordered_map>

#include "model/Overloaded.h"

namespace glossmill {

namespace {

std::size_t& unreadOf(FileRole role, ScanTotals& totals) {
  switch (role) {
    case FileRole::ProjectFile:
      return totals.unreadProjectFiles;
    case FileRole::Source:
      return totals.unreadSources;
    case FileRole::StringsFile:
      return totals.unreadStringsFiles;
    case FileRole::Directory:
    case FileRole::Unknown:
      break;
  }
  return totals.unreadPlaces;
}

}  // namespace

void ScanReport::add(const ScanEvent& event) {
  m_news.add(event);
  std::visit(Overloaded{
                 [this](const ProjectFileUnread& it) { findings(FileRole::ProjectFile, it.file).unread = it.error; },
                 [this](const SourceUnread& it) { findings(FileRole::Source, it.file).unread = it.error; },
                 [this](const CallRejected& it) {
                   ++findings(FileRole::Source, it.file).rejectedCalls[static_cast<std::size_t>(it.reason)];
                 },
                 [this](const StringsFileUnread& it) { findings(FileRole::StringsFile, it.file).unread = it.error; },
                 [this](const EntryRejected& it) { ++findings(FileRole::StringsFile, it.file).rejectedEntries; },
                 [this](const EntryWithoutMatch& it) { ++findings(FileRole::StringsFile, it.file).unmatchedEntries; },
                 [](const auto&) {},
             },
             event);
}

/// Files are read one after the other, so what happens is about the last one or about a new one.
FileFindings& ScanReport::findings(FileRole role, const FileUrl& file) {
  if (m_files.empty() || m_files.back().role != role || !(m_files.back().file == file)) {
    m_files.push_back({file, role, std::nullopt, {}, 0, 0});
  }
  return m_files.back();
}

void ScanReport::addUnread(const std::vector<FileFindings>& places) {
  std::unordered_map<std::string, std::size_t> known;
  for (std::size_t at = 0; at < m_files.size(); ++at) known.try_emplace(m_files[at].file.path(), at);
  for (const FileFindings& place : places) {
    const auto found = known.find(place.file.path());
    if (found == known.end()) {
      m_files.push_back(place);
    } else if (!m_files[found->second].unread) {
      m_files[found->second].unread = place.unread;
    }
  }
}

ScanTotals ScanReport::totals() const {
  ScanTotals totals;
  for (const FileFindings& file : m_files) {
    if (file.unread) ++unreadOf(file.role, totals);
    for (std::size_t reason = 0; reason < kCallRejections; ++reason) {
      totals.rejectedCallsBy[reason] += file.rejectedCalls[reason];
      totals.rejectedCalls += file.rejectedCalls[reason];
    }
    totals.rejectedEntries += file.rejectedEntries;
    totals.unmatchedEntries += file.unmatchedEntries;
  }
  return totals;
}

}  // namespace glossmill
