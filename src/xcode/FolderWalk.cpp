#include "xcode/FolderWalk.h"

#include <algorithm>
#include <vector>

namespace glossmill {

bool isClosedFolder(std::string_view name, FolderKinds kinds) {
  constexpr std::string_view kClosed[] = {".xcodeproj", ".xcworkspace", ".framework", ".xcframework", ".app"};
  if (kinds == FolderKinds::Plain && name.ends_with(".bundle")) return true;
  return std::any_of(std::begin(kClosed), std::end(kClosed),
                     [name](std::string_view extension) { return name.ends_with(extension); });
}

bool FolderWalk::goesInto(const std::string& path, const DirectoryEntry& entry) {
  if (entry.kind != EntryKind::Directory || isClosedFolder(entry.name, m_kinds)) return false;
  if (!entry.isLink) return true;
  const std::optional<FileIdentity> target = m_folders.files().identityOf(FileUrl(path));
  return target && m_followed.emplace(target->device, target->node).second;
}

void FolderWalk::eachFile(const std::string& directory, const std::function<void(const std::string& path)>& visit) {
  std::vector<std::string> open{directory};
  while (!open.empty()) {
    const std::string folder = std::move(open.back());
    open.pop_back();
    const std::vector<DirectoryEntry>* entries = m_folders.entries(folder);
    if (!entries) continue;
    std::vector<std::string> inside;
    for (const DirectoryEntry& entry : *entries) {
      std::string path = pathInside(folder, entry.name);
      if (entry.kind == EntryKind::File) visit(path);
      if (goesInto(path, entry)) inside.push_back(std::move(path));
    }
    open.insert(open.end(), std::make_move_iterator(inside.rbegin()), std::make_move_iterator(inside.rend()));
  }
}

}  // namespace glossmill
