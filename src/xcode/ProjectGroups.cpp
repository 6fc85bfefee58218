#include "xcode/ProjectGroups.h"

#include <charconv>
#include <utility>

#include "xcode/ProjectPaths.h"

namespace glossmill {

namespace {

/// Some are spelled as negative numbers of 32 bits.
std::optional<std::uint32_t> encodingNumber(std::string_view text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return static_cast<std::uint32_t>(number);
}

bool isGroup(std::string_view isa) {
  return isa == "PBXGroup" || isa == "PBXVariantGroup" || isa == "XCVersionGroup";
}

}  // namespace

ProjectGroups::ProjectGroups(const ProjectObjects& objects, ProjectMembers& members, ProjectFile& file)
    : m_objects(objects), m_members(members), m_file(file), m_isTaken(objects.size()) {}

void ProjectGroups::take(Number object) {
  takeChild(object, m_file.sourceRoot, 0);
  while (!m_open.empty()) {
    Group& group = m_open.back();
    if (!(group.next != group.end)) {
      m_open.pop_back();
      continue;
    }
    const Number child = m_objects.find((*group.next).text());
    ++group.next;
    takeChild(child, group.path, group.members);
  }
}

/// May open a group, after which `base` is no longer there.
void ProjectGroups::takeChild(Number object, const std::optional<std::string>& base, std::uint32_t groupMembers) {
  if (object == ProjectObjects::kNone || m_isTaken[object]) return;
  m_isTaken[object] = true;
  const std::string_view isa = m_objects[object]["isa"].text();
  if (isa == "PBXFileReference") {
    takeFile(object, base, groupMembers);
  } else if (isa == "PBXFileSystemSynchronizedRootGroup") {
    takeFolder(object, base);
  } else if (isGroup(isa)) {
    open(object, pathOf(object, base));
  }
}

void ProjectGroups::takeFile(Number object, const std::optional<std::string>& base, std::uint32_t groupMembers) {
  const PropertyList::Value reference = m_objects[object];
  std::optional<std::string> path = pathOf(object, base);
  if (!path || reference["path"].text().empty()) return;
  const std::string_view said = reference["explicitFileType"].text();
  const std::string_view type = said.empty() ? reference["lastKnownFileType"].text() : said;
  m_file.files.push_back({std::move(*path), std::string(type), encodingNumber(reference["fileEncoding"].text()),
                          m_members.membersOf(object), groupMembers});
}

void ProjectGroups::takeFolder(Number object, const std::optional<std::string>& base) {
  std::optional<std::string> path = pathOf(object, base);
  if (!path) return;
  m_file.folders.push_back(m_members.folder(object));
  m_file.folders.back().path = std::move(*path);
}

void ProjectGroups::open(Number object, std::optional<std::string> path) {
  const PropertyList::Items children = m_objects[object]["children"].items();
  m_open.push_back({children.begin(), children.end(), std::move(path), m_members.membersOf(object)});
}

std::optional<std::string> ProjectGroups::pathOf(Number object, const std::optional<std::string>& base) const {
  const std::string_view tree = m_objects[object]["sourceTree"].text();
  const std::string_view path = m_objects[object]["path"].text();
  if (tree.empty() || tree == "<group>") return base ? joinedPath(*base, path) : std::nullopt;
  if (tree == "SOURCE_ROOT") return joinedPath(m_file.sourceRoot, path);
  return tree == "<absolute>" ? joinedPath("/", path) : std::nullopt;
}

}  // namespace glossmill
