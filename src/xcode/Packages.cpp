#include "xcode/Packages.h"

#include <unordered_set>

#include "platform/ReadText.h"
#include "xcode/FolderWalk.h"
#include "xcode/ProjectPaths.h"

namespace glossmill {

namespace {

constexpr std::string_view kProjectFileName = "project.pbxproj";

bool holdsProjectFile(FolderListings& folders, const std::string& package) {
  return folders.kindOf(pathInside(package, kProjectFileName)) == EntryKind::File;
}

/// Goes down level by level until one holds packages.
class PackageLevels {
 public:
  explicit PackageLevels(const PackageInput& input) : m_input(input), m_walk(input.folders, FolderKinds::Plain) {}

  std::vector<std::string> find() {
    std::vector<std::string> level{m_input.folders.root()};
    while (!level.empty() && m_found.empty()) {
      std::vector<std::string> next;
      for (const std::string& directory : level) look(directory, next);
      level = std::move(next);
    }
    return m_found;
  }

 private:
  void look(const std::string& directory, std::vector<std::string>& next) {
    const std::vector<DirectoryEntry>* entries = m_input.folders.entries(directory);
    if (!entries || m_input.canceled.isSet()) return;
    for (const DirectoryEntry& entry : *entries) {
      if (entry.kind != EntryKind::Directory) continue;
      std::string path = pathInside(directory, entry.name);
      if (m_input.excluded.take(pathBelowRoot(m_input.folders.root(), path))) continue;
      if (entry.name.ends_with(".xcodeproj")) {
        if (holdsProjectFile(m_input.folders, path)) m_found.push_back(std::move(path));
      } else if (m_walk.goesInto(path, entry)) {
        next.push_back(std::move(path));
      }
    }
  }

  const PackageInput& m_input;
  FolderWalk m_walk;
  std::vector<std::string> m_found;
};

class PackageReading {
 public:
  PackageReading(const PackageInput& input, const std::function<void(Problem)>& report)
      : m_input(input), m_report(report) {}

  std::vector<XcodePackage> read(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) want(path);
    for (std::size_t next = 0; next < m_wanted.size() && !m_input.canceled.isSet(); ++next) {
      const std::string path = m_wanted[next];  // the list grows meanwhile
      take(path);
    }
    return std::move(m_packages);
  }

 private:
  void want(const std::string& path) {
    if (m_known.insert(path).second) m_wanted.push_back(path);
  }

  void take(const std::string& path) {
    XcodePackage package{path, std::string(directoryOf(path)), {}, m_targets};
    const FileUrl file(pathInside(path, kProjectFileName));
    const Result<std::string> text = readText(m_input.folders.files(), file);
    if (text) {
      const PropertyList list(text.value());
      package.file = readProjectFile(list);
    } else {
      package.file.error = SyntaxError{{0, 0}, text.error().sentence};
    }
    if (package.file.error) report(file, *package.file.error, "project-file");
    m_targets += static_cast<std::uint32_t>(package.file.targets.size());
    for (const std::string& project : package.file.projects) takeReferenced(package, project, file);
    m_packages.push_back(std::move(package));
  }

  void takeReferenced(const XcodePackage& package, const std::string& project, const FileUrl& file) {
    const std::optional<std::string> path = joinedPath(package.directory, project);
    if (!path || m_input.excluded.take(pathBelowRoot(m_input.folders.root(), *path))) return;
    if (holdsProjectFile(m_input.folders, *path)) return want(*path);
    report(file, {{0, 0}, "The project that it references does not exist: " + project}, "package-missing");
  }

  void report(const FileUrl& file, const SyntaxError& error, std::string_view kind) {
    m_report({file, static_cast<std::uint32_t>(error.place.line), static_cast<std::uint32_t>(error.place.column), kind,
              error.sentence});
  }

  const PackageInput& m_input;
  const std::function<void(Problem)>& m_report;
  std::vector<std::string> m_wanted;
  std::unordered_set<std::string> m_known;
  std::vector<XcodePackage> m_packages;
  std::uint32_t m_targets = 0;
};

}  // namespace

std::vector<std::string> findPackages(const PackageInput& input) {
  return PackageLevels(input).find();
}

std::vector<XcodePackage> readPackages(const std::vector<std::string>& paths, const PackageInput& input,
                                       const std::function<void(Problem)>& report) {
  return PackageReading(input, report).read(paths);
}

std::string_view pathBelowRoot(std::string_view root, std::string_view path) {
  if (root == "/" && path.starts_with('/')) return path.substr(1);
  if (path.size() <= root.size() || !path.starts_with(root) || path[root.size()] != '/') return path;
  return path.substr(root.size() + 1);
}

}  // namespace glossmill
