#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "xcode/Packages.h"

namespace glossmill {

/// A file that packages name, by itself or with a folder that it lies in.
struct MemberFile {
  std::string path;
  std::optional<std::uint32_t> encoding;  ///< what a package says of it: a number that encodingOfNumber takes
  std::uint32_t package = 0;              ///< the first that names it
  std::vector<std::uint32_t> targets;     ///< that compile or copy it, ascending, each once
};

/// The files of all packages that matter to their texts, each once, in the order of the paths.
struct MemberFiles {
  std::vector<MemberFile> sources;
  std::vector<MemberFile> strings;    ///< that lie in an `.lproj`
  std::vector<MemberFile> documents;  ///< in XML: interface files and property lists, which may hold keys
  std::vector<MemberFile> catalogs;   ///< string catalogs
  std::vector<MemberFile> unread;     ///< which nothing here reads
};

/// Files that are named and do not exist are reported.
MemberFiles collectMembers(const std::vector<XcodePackage>& packages, const PackageInput& input,
                           const std::function<void(Problem)>& report);

/// A source of the C family that others include.
bool isHeader(std::string_view path);
bool isSwift(std::string_view path);

}  // namespace glossmill
