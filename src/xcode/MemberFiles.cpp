#include "xcode/MemberFiles.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

#include "xcode/FolderWalk.h"
#include "xcode/ProjectPaths.h"

namespace glossmill {

namespace {

enum class MemberSort { Source, Strings, Document, Catalog, Unread, None };

constexpr std::string_view kHeaderExtensions[] = {"h", "hh", "hpp", "pch"};
constexpr std::string_view kSourceExtensions[] = {"m", "mm", "c", "cc", "cpp", "cxx", "h", "hh", "hpp", "pch", "swift"};
constexpr std::string_view kDocumentExtensions[] = {"xib", "storyboard", "plist"};
constexpr std::string_view kUnreadExtensions[] = {"stringsdict"};

template <std::size_t kCount>
bool holdsExtension(const std::string_view (&extensions)[kCount], std::string_view extension) {
  return std::find(std::begin(extensions), std::end(extensions), extension) != std::end(extensions);
}

MemberSort sortOf(std::string_view path) {
  const std::string_view extension = extensionOfName(nameOfPath(path));
  if (extension == "strings") return directoryOf(path).ends_with(".lproj") ? MemberSort::Strings : MemberSort::None;
  if (holdsExtension(kSourceExtensions, extension)) return MemberSort::Source;
  if (holdsExtension(kDocumentExtensions, extension)) return MemberSort::Document;
  if (extension == "xcstrings") return MemberSort::Catalog;
  return holdsExtension(kUnreadExtensions, extension) ? MemberSort::Unread : MemberSort::None;
}

/// A reference that may stand for a folder: frameworks, applications and whatever else has an extension of its own do
/// not.
bool mayBeFolder(const ProjectFile::File& file) {
  const std::string_view extension = extensionOfName(nameOfPath(file.path));
  return extension.empty() || extension == "lproj" || extension == "bundle" || file.type == "folder";
}

/// Files of one sort by their paths.
class MemberList {
 public:
  MemberFile& at(const std::string& path) {
    const auto [known, isNew] = m_numbers.emplace(path, m_files.size());
    if (isNew) m_files.push_back({path, {}, 0, {}});
    m_isNew = isNew;
    return m_files[known->second];
  }
  bool wasNew() const { return m_isNew; }

  std::vector<MemberFile> finish() {
    std::sort(m_files.begin(), m_files.end(), [](const MemberFile& a, const MemberFile& b) { return a.path < b.path; });
    return std::move(m_files);
  }

 private:
  std::vector<MemberFile> m_files;
  std::unordered_map<std::string, std::size_t> m_numbers;
  bool m_isNew = false;
};

/// What one package says of a file.
struct Mention {
  std::optional<std::uint32_t> encoding;
  std::vector<std::uint32_t> targets;  ///< of the package
};

class MemberCollector {
 public:
  MemberCollector(const PackageInput& input, const std::function<void(Problem)>& report)
      : m_input(input), m_report(report) {}

  void addPackage(const XcodePackage& package, std::uint32_t number) {
    m_package = &package;
    m_number = number;
    if (package.file.error) return addFolder(package.directory, FolderKinds::Plain, {});
    for (const ProjectFile::File& file : package.file.files) {
      if (m_input.canceled.isSet()) return;
      addFile(file);
    }
    for (const SynchronizedFolder& folder : package.file.folders) addSynchronized(folder);
  }

  MemberFiles finish() {
    return {m_lists[0].finish(), m_lists[1].finish(), m_lists[2].finish(), m_lists[3].finish(), m_lists[4].finish()};
  }

 private:
  void addFile(const ProjectFile::File& file) {
    const std::optional<std::string> path = joinedPath(m_package->directory, file.path);
    if (!path) return;
    const MemberSort sort = sortOf(*path);
    if (sort == MemberSort::None && mayBeFolder(file)) return addReferencedFolder(file, *path);
    if (sort == MemberSort::None) return;
    if (m_input.folders.kindOf(*path) != EntryKind::File) return reportMissing(*path, sort);
    const BuildPhase phase = sort == MemberSort::Source ? BuildPhase::Sources : BuildPhase::Resources;
    add(*path, {file.encoding, m_package->file.targetsOf(file, phase)});
  }

  /// Stands for the strings files that are inside.
  void addReferencedFolder(const ProjectFile::File& file, const std::string& path) {
    if (m_input.folders.kindOf(path) != EntryKind::Directory) return;
    const Mention mention{file.encoding, m_package->file.targetsOf(file, BuildPhase::Resources)};
    FolderWalk(m_input.folders, FolderKinds::Bundles).eachFile(path, [this, &mention](const std::string& inside) {
      const MemberSort sort = sortOf(inside);
      const bool holdsTexts = sort == MemberSort::Strings || sort == MemberSort::Catalog || sort == MemberSort::Unread;
      if (holdsTexts) add(inside, mention);
    });
  }

  void addFolder(const std::string& path, FolderKinds kinds, const Mention& mention) {
    FolderWalk(m_input.folders, kinds).eachFile(path, [this, &mention](const std::string& inside) {
      add(inside, mention);
    });
  }

  void addSynchronized(const SynchronizedFolder& folder) {
    const std::optional<std::string> path = joinedPath(m_package->directory, folder.path);
    if (!path || m_input.folders.kindOf(*path) != EntryKind::Directory) return;
    FolderWalk(m_input.folders, FolderKinds::Bundles).eachFile(*path, [&](const std::string& inside) {
      const MemberSort sort = sortOf(inside);
      if (sort == MemberSort::None) return;
      const BuildPhase phase = sort == MemberSort::Source ? BuildPhase::Sources : BuildPhase::Resources;
      add(inside, {std::nullopt, folder.targetsOf(pathBelowRoot(*path, inside), phase)});
    });
  }

  void add(const std::string& path, const Mention& mention) {
    const MemberSort sort = sortOf(path);
    if (sort == MemberSort::None || m_input.excluded.take(pathBelowRoot(m_input.folders.root(), path))) return;
    MemberList& list = m_lists[static_cast<std::size_t>(sort)];
    MemberFile& file = list.at(path);
    if (list.wasNew()) file.package = m_number;
    if (!file.encoding) file.encoding = mention.encoding;
    std::vector<std::uint32_t> all;
    std::vector<std::uint32_t> own = mention.targets;
    for (std::uint32_t& target : own) target += m_package->firstTarget;
    std::set_union(file.targets.begin(), file.targets.end(), own.begin(), own.end(), std::back_inserter(all));
    file.targets = std::move(all);
  }

  void reportMissing(const std::string& path, MemberSort sort) {
    const std::string_view below = pathBelowRoot(m_input.folders.root(), path);
    if ((sort != MemberSort::Source && sort != MemberSort::Strings && sort != MemberSort::Catalog) ||
        m_input.excluded.take(below))
      return;
    m_report({FileUrl(pathInside(m_package->path, "project.pbxproj")), 0, 0, "file-missing",
              "A file that it lists does not exist: " + std::string(below)});
  }

  const PackageInput& m_input;
  const std::function<void(Problem)>& m_report;
  const XcodePackage* m_package = nullptr;
  std::uint32_t m_number = 0;
  MemberList m_lists[5];  ///< by MemberSort
};

}  // namespace

MemberFiles collectMembers(const std::vector<XcodePackage>& packages, const PackageInput& input,
                           const std::function<void(Problem)>& report) {
  MemberCollector collector(input, report);
  for (std::uint32_t number = 0; number < packages.size(); ++number) collector.addPackage(packages[number], number);
  return collector.finish();
}

bool isHeader(std::string_view path) {
  return holdsExtension(kHeaderExtensions, extensionOfName(nameOfPath(path)));
}

bool isSwift(std::string_view path) {
  return path.ends_with(".swift");
}

}  // namespace glossmill
