#include "tree/XcodeHostileTrees.h"

#include <string>
#include <string_view>

namespace glossmill::bench {

namespace {

constexpr std::string_view kStrings = "/* Title */\n\"Open\" = \"Open\";\n";
constexpr std::string_view kPlainCall = "  self.title = NSLocalizedString(@\"Open\", @\"Title\");\n";
constexpr std::string_view kProject =
    "P = {isa = PBXProject; mainGroup = G0; targets = (); developmentRegion = en; };\n";

std::string numbered(std::string_view name, std::size_t number) {
  std::string digits = std::to_string(number);
  if (digits.size() < 8) digits.insert(0, 8 - digits.size(), '0');
  return std::string(name) + digits;
}

std::string reference(std::string_view id, std::string_view path) {
  return std::string(id) + " = {isa = PBXFileReference; path = " + std::string(path) +
         "; sourceTree = \"<group>\"; };\n";
}

std::string group(std::string_view id, std::string_view children) {
  return std::string(id) + " = {isa = PBXGroup; children = (" + std::string(children) +
         "); sourceTree = \"<group>\"; };\n";
}

void writeProjectFile(TreeWriter& tree, const std::string& objects) {
  const std::string begin = "// !$*UTF8*$!\n{ objects = {\n" + std::string(kProject);
  tree.write("App.xcodeproj/project.pbxproj", begin + objects + "}; rootObject = P; }\n");
}

/// A project of one source, one header and one language.
void writeSources(TreeWriter& tree, std::string_view source, std::string_view header, std::string_view strings) {
  writeProjectFile(tree, group("G0", "M, H, E") + reference("M", "Main.m") + reference("H", "Main.h") +
                             reference("E", "en.lproj/Localizable.strings"));
  tree.write("Main.m", source);
  tree.write("Main.h", header);
  tree.write("en.lproj/Localizable.strings", strings);
}

}  // namespace

void writeLiterals(TreeWriter& tree, std::size_t literals) {
  std::string text(kPlainCall);
  for (std::size_t literal = 0; literal < literals; ++literal) {
    switch (literal % 4) {
      case 0:
      case 1:
        text += "  @\"part \\\"" + std::to_string(literal) + "\\\"\" /* and */\n";
        break;
      case 2:
        text += "  NSLocalizedString(@\"open " + std::to_string(literal) + "\n";
        break;
      default:
        text += "  @\"open \\\n" + std::to_string(literal) + "\n";
    }
  }
  writeSources(tree, text, "", kStrings);
}

void writeGroups(TreeWriter& tree, std::size_t groups) {
  std::string objects;
  for (std::size_t number = 0; number < groups; ++number) {
    const std::string inside = number + 1 < groups ? "G" + std::to_string(number + 1) : std::string("M, E");
    objects += group("G" + std::to_string(number), inside);
  }
  writeProjectFile(tree, objects + reference("M", "Main.m") + reference("E", "en.lproj/Localizable.strings"));
  tree.write("Main.m", kPlainCall);
  tree.write("en.lproj/Localizable.strings", kStrings);
}

void writeMacros(TreeWriter& tree, std::size_t macros) {
  std::string header;
  for (std::size_t macro = 0; macro < macros; ++macro) {
    const std::string next = macro + 1 < macros ? numbered("Text", macro + 1) : std::string("NSLocalizedString");
    header += "#define " + numbered("Text", macro) + "(key, comment) \\\n  " + next + "(key, comment)\n";
  }
  writeSources(tree, "  self.title = " + numbered("Text", 0) + "(@\"Open\", @\"Title\");\n", header, kStrings);
}

void writeTables(TreeWriter& tree, std::size_t tables) {
  std::string children = "M";
  std::string references = reference("M", "Main.m");
  std::string source;
  for (std::size_t table = 0; table < tables; ++table) {
    const std::string id = numbered("T", table);
    const std::string path = numbered("Parts/Part", table) + "/en.lproj/Localizable.strings";
    children += ", " + id;
    references += reference(id, path);
    source += "  NSLocalizedString(@\"" + numbered("Call ", table) + "\", @\"Title\");\n";
    tree.write(path, "\"" + numbered("Entry ", table) + "\" = \"Open\";\n");
  }
  writeProjectFile(tree, group("G0", children) + references);
  tree.write("Main.m", source);
}

void writeCallLine(TreeWriter& tree, std::size_t bytes) {
  constexpr std::size_t kBytesPerCall = 50;
  std::string text;
  text.reserve(bytes + kBytesPerCall);
  for (std::size_t call = 0; text.size() + kBytesPerCall <= bytes; ++call) {
    text += "NSLocalizedString(@\"" + numbered("key ", call) + "\", @\"Title\"); ";
    text.append(kBytesPerCall - text.size() % kBytesPerCall, ' ');
  }
  writeSources(tree, text, "", "");
}

void writeRepeatedKeys(TreeWriter& tree, std::size_t entries) {
  std::string text;
  for (std::size_t entry = 0; entry < entries; ++entry) {
    text += "\"" + numbered("key ", entry / 2) + "\" = \"" + std::to_string(entry) + "\";\n";
  }
  writeSources(tree, kPlainCall, "", text);
}

}  // namespace glossmill::bench
