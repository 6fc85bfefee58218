#include "tree/ProjectFileText.h"

#include <string_view>

#include "tree/Random.h"

namespace glossmill::bench {

namespace {

enum class Role : std::size_t { source, buildFile, header };

// The 24 hexadecimal digits by which such a file calls its objects.
std::string objectName(std::size_t index, Role role) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  Random random(index * 4 + static_cast<std::size_t>(role));
  std::string name;
  for (int digit = 0; digit < 24; ++digit) name += kDigits[random.below(16)];
  return name;
}

std::string reference(std::size_t index, const std::string& file, Role role) {
  const std::string language = role == Role::header ? "h" : "objc";
  return "\t\t" + objectName(index, role) + " /* " + file + " */ = {isa = PBXFileReference; fileEncoding = 4; " +
         "lastKnownFileType = sourcecode.c." + language + "; path = " + file + "; sourceTree = \"<group>\"; };\n";
}

std::string buildFile(std::size_t index, const std::string& file) {
  return "\t\t" + objectName(index, Role::buildFile) + " /* " + file +
         " in Sources */ = {isa = PBXBuildFile; fileRef = " + objectName(index, Role::source) + " /* " + file +
         " */; };\n";
}

std::string buildStep(std::size_t index, const std::string& file) {
  return "\t\t\t\t" + objectName(index, Role::buildFile) + " /* " + file + " in Sources */,\n";
}

std::string groupChild(std::size_t index, const std::string& file) {
  return "\t\t\t\t" + objectName(index, Role::source) + " /* " + file + " */,\n";
}

}  // namespace

std::string projectFileText(const std::vector<std::string>& classNames, std::size_t targetBytes) {
  std::string builds;
  std::string references;
  std::string children;
  std::string steps;
  for (std::size_t index = 0; index < classNames.size(); ++index) {
    const std::string file = classNames[index] + ".m";
    builds += buildFile(index, file);
    references += reference(index, file, Role::source);
    children += groupChild(index, file);
    steps += buildStep(index, file);
  }
  std::size_t size = builds.size() + references.size() + children.size() + steps.size();
  for (std::size_t index = 0; index < classNames.size() && size < targetBytes; ++index) {
    const std::string line = reference(index, classNames[index] + ".h", Role::header);
    references += line;
    size += line.size();
  }
  return "// !$*UTF8*$!\n{\n\tarchiveVersion = 1;\n\tclasses = {\n\t};\n\tobjectVersion = 46;\n\tobjects = {\n\n" +
         builds + "\n" + references + "\n\t\tisa = PBXGroup;\n\t\t\tchildren = (\n" + children +
         "\t\t\t);\n\n\t\tisa = PBXSourcesBuildPhase;\n\t\t\tfiles = (\n" + steps + "\t\t\t);\n\t};\n}\n";
}

}  // namespace glossmill::bench
