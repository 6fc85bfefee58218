#include "model/ScanNews.h"

#include <algorithm>

#include "model/Language.h"
#include "model/Overloaded.h"
#include "model/Problem.h"
#include "text/Utf16.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostUnits = 80;  ///< of the text of an example; a line may be a megabyte long

/// "German.lproj is de"
std::string oldNameText(const OldLanguageName& event) {
  return std::string(event.directoryName).append(".lproj is ").append(event.code);
}

}  // namespace

ScanNewsItem& ScanNews::itemOf(ScanNewsKind kind, std::string_view problem) {
  const auto found = std::ranges::find_if(
      m_items, [&](const ScanNewsItem& item) { return item.kind == kind && item.problem == problem; });
  if (found != m_items.end()) return *found;
  const auto next = std::ranges::find_if(m_items, [kind](const ScanNewsItem& item) { return item.kind > kind; });
  return *m_items.insert(next, {kind, problem, 0, {}});
}

void ScanNews::count(ScanNewsKind kind, const FileUrl& file, std::string_view text) {
  ScanNewsItem& item = itemOf(kind, {});
  ++item.count;
  if (item.examples.size() < kMostExamples) item.examples.push_back({file, 0, 0, clipUtf16(text, kMostUnits)});
}

void ScanNews::count(const Problem& problem) {
  ScanNewsItem& item = itemOf(ScanNewsKind::Problem, problem.kind);
  ++item.count;
  if (item.examples.size() < kMostExamples) {
    item.examples.push_back({problem.file, problem.line, problem.column, problem.text});
  }
}

void ScanNews::add(const ScanEvent& event) {
  using Kind = ScanNewsKind;
  std::visit(Overloaded{
                 [this](const NoPackageFound&) { count(Kind::NoPackage, {}, {}); },
                 [this](const ProjectFileUnread& it) { count(Kind::ProjectFileUnread, it.file, it.error.sentence); },
                 [this](const DirectoryUnread& it) { count(Kind::DirectoryUnread, it.directory, it.error.sentence); },
                 [this](const LinksCutOff& it) { count(Kind::LinksCutOff, it.directory, {}); },
                 [this](const OldLanguageName& it) { count(Kind::OldLanguageName, {}, oldNameText(it)); },
                 [this](const SourceUnread& it) { count(Kind::SourceUnread, it.file, it.error.sentence); },
                 [this](const StringsFileMissing& it) { count(Kind::StringsFileMissing, {}, it.language.iso639()); },
                 [this](const StringsFileUnread& it) { count(Kind::StringsFileUnread, it.file, it.error.sentence); },
                 [this](const CallRejected& it) { count(Kind::CallRejected, it.file, it.excerpt); },
                 [this](const EntryRejected& it) { count(Kind::EntryRejected, it.file, it.text); },
                 [this](const EntryWithoutMatch& it) { count(Kind::EntryWithoutMatch, it.file, it.key); },
                 [this](const ProblemFound& it) { count(it.problem); },
                 [](const auto&) {},
             },
             event);
}

}  // namespace glossmill
