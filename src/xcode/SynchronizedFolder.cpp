#include "xcode/SynchronizedFolder.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr std::string_view kLanguageDirectory = ".lproj/";
// The second is how they were spelled at first.
constexpr std::string_view kLocalizedPrefixes[] = {"/Localized: ", "/Localized/"};

bool holds(const std::unordered_set<std::string>& paths, std::string_view path) {
  return !paths.empty() && paths.contains(std::string(path));
}

/// "Texts/de.lproj/a.strings" gives "Texts/a.strings"; nothing for a file that no `.lproj` directory holds.
std::optional<std::string> withoutLanguage(std::string_view path) {
  const std::size_t name = path.rfind('/') + 1;  // 0 when there is no slash
  const std::string_view directory = path.substr(0, name);
  if (!directory.ends_with(kLanguageDirectory)) return std::nullopt;
  const std::size_t parent = directory.rfind('/', directory.size() - 2) + 1;
  return std::string(path.substr(0, parent)) += path.substr(name);
}

bool isInside(std::string_view path, const std::vector<std::string>& folders) {
  return std::any_of(folders.begin(), folders.end(), [path](const std::string& folder) {
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
  });
}

}  // namespace

/// A directory stands for all that is inside.
bool SynchronizedFolder::Exceptions::hold(std::string_view file) const {
  const std::optional<std::string> localized = withoutLanguage(file);
  if (localized && holds(localizedPaths, *localized)) return true;
  for (std::size_t end = file.size(); end != std::string_view::npos; end = file.rfind('/', end - 1)) {
    if (end == 0) return false;
    if (holds(paths, file.substr(0, end))) return true;
  }
  return false;
}

std::vector<std::uint32_t> SynchronizedFolder::targetsOf(std::string_view file, BuildPhase phase) const {
  if (phase == BuildPhase::Sources && isInside(file, explicitFolders)) return {};
  std::vector<std::uint32_t> leftOut;
  std::vector<std::uint32_t> targets;
  for (const Exceptions& set : exceptions) {
    if (set.phase.value_or(phase) != phase || !set.hold(file)) continue;
    const bool isOwner = std::binary_search(owners.begin(), owners.end(), set.target);
    (isOwner ? leftOut : targets).push_back(set.target);
  }
  for (const std::uint32_t owner : owners) {
    if (std::find(leftOut.begin(), leftOut.end(), owner) == leftOut.end()) targets.push_back(owner);
  }
  std::sort(targets.begin(), targets.end());
  targets.erase(std::unique(targets.begin(), targets.end()), targets.end());
  return targets;
}

void addException(SynchronizedFolder::Exceptions& exceptions, std::string_view path) {
  for (const std::string_view prefix : kLocalizedPrefixes) {
    if (!path.starts_with(prefix)) continue;
    exceptions.localizedPaths.emplace(path.substr(prefix.size()));
    return;
  }
  while (path.ends_with('/')) path.remove_suffix(1);
  const bool namesLanguage = path.ends_with(".lproj") || path.find(kLanguageDirectory) != std::string_view::npos;
  if (!path.empty() && !namesLanguage) exceptions.paths.emplace(path);
}

}  // namespace glossmill
