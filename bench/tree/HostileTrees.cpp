#include "tree/HostileTrees.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "tree/ProjectFileText.h"
#include "tree/ProjectTree.h"
#include "tree/Random.h"
#include "tree/SourceText.h"
#include "tree/Vocabulary.h"

namespace glossmill::bench {

namespace {

constexpr std::string_view kCall = "NSLocalizedString";

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  result.reserve(text.size() * times);
  for (std::size_t time = 0; time < times; ++time) result += text;
  return result;
}

std::string padded(std::size_t number, std::size_t digits) {
  std::string text = std::to_string(number);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

void writeOneSource(TreeWriter& tree, std::string_view source, std::string_view strings) {
  tree.write("App.xcodeproj/project.pbxproj", projectFileText({"Main"}, 0));
  tree.write("Main.m", source);
  tree.write("en.lproj/Localizable.strings", strings);
}

void writeSource(TreeWriter& tree, std::string_view source) {
  writeOneSource(tree, source, "/* Title */\n\"Open\" = \"Open\";\n");
}

void writeStrings(TreeWriter& tree, std::string_view strings) {
  writeOneSource(tree, "  self.title = NSLocalizedString(@\"Open\", @\"Title\");\n", strings);
}

// Distinct for different indexes and without the letters that the bad project file repeats.
std::string mark(std::size_t index) {
  constexpr std::string_view kLetters = "bcdefghi";
  std::string text;
  for (int letter = 0; letter < 8; ++letter, index /= kLetters.size()) text += kLetters[index % kLetters.size()];
  return text;
}

// Long names that share long ends, or long beginnings, with the runs of the project file.
std::string badName(std::size_t index) {
  const std::size_t length = 20 + index / 3 % 100;
  switch (index % 3) {
    case 0:
      return mark(index) + repeated(".m", length);
    case 1:
      return mark(index) + std::string(2 * length, 'a') + ".m";
    default:
      return std::string(length, 'a') + mark(index) + std::string(length, 'a') + ".m";
  }
}

std::string badProjectText(std::size_t bytes, std::string_view names) {
  const std::size_t half = (bytes - std::min(bytes, names.size())) / 2;
  std::string text(names);
  text += repeated(".m", half / 2) + "\n";
  for (std::size_t run = 1; text.size() < bytes; run = run % 240 + 1) text += std::string(run, 'a') + ".m";
  return text + "\n";
}

}  // namespace

void writeUnbalanced(TreeWriter& tree, std::size_t calls) {
  std::string text;
  for (std::size_t call = 0; call < calls; ++call) {
    text.append(kCall).append("(@\"k").append(padded(call, 7)).append("\", @\"note\";\n");
  }
  writeSource(tree, text);
}

void writeBare(TreeWriter& tree, std::size_t calls) {
  writeSource(tree, repeated(std::string(kCall) + " is never called, see it;\n", calls));
}

void writeNested(TreeWriter& tree, std::size_t calls) {
  const std::string open = std::string(kCall) + "(";
  writeSource(tree, repeated(open, calls) + "@\"Open\"" + repeated(", @\"Title\")", calls) + ";\n");
}

void writeDangling(TreeWriter& tree, std::size_t calls) {
  const std::string open = std::string(kCall) + "(";
  writeSource(tree, repeated(open, calls) + "@\"Open\"" + repeated(" @\"Title\")", calls) + ";\n");
}

void writeComments(TreeWriter& tree, std::size_t calls) {
  std::string text;
  for (std::size_t call = 0; call < calls; ++call) {
    text.append("  ").append(kCall).append("(@\"Open\", @\"Title ").append(padded(call, 8)).append("\");\n");
  }
  writeSource(tree, text);
}

void writeLongLine(TreeWriter& tree, std::size_t bytes) {
  constexpr std::size_t kBytesPerCall = 500;
  Random random(bytes);
  std::string text;
  text.reserve(bytes + 2 * kBytesPerCall);
  for (std::size_t call = 0; call < bytes / kBytesPerCall; ++call) {
    while (text.size() < call * kBytesPerCall) appendFiller(text, random);
    appendCall(text, {keyText(call), commentText(call)}, random);
  }
  std::replace(text.begin(), text.end(), '\n', ' ');
  text.append(bytes - std::min(bytes, text.size()), ' ');
  writeSource(tree, text);
}

void writeManyKeys(TreeWriter& tree, std::size_t keys) {
  writeProject(tree, manyKeysShape(keys));
}

void writeBadProject(TreeWriter& tree, std::size_t bytes) {
  constexpr std::size_t kBytesPerPair = 3'400;
  std::string named;
  for (std::size_t source = 0; source < 2 * (bytes / kBytesPerPair); ++source) {
    const std::string name = badName(source);
    if (source % 2 == 0) named += name + "\n";
    const SourceCall call{keyText(source), commentText(source)};
    Random random(source + 1);
    std::string text;
    appendCall(text, call, random);
    tree.write("Sources/" + name, text);
  }
  tree.write("App.xcodeproj/project.pbxproj", badProjectText(bytes, named));
  tree.write("en.lproj/Localizable.strings", "/* Title */\n\"Open\" = \"Open\";\n");
}

void writeBadComments(TreeWriter& tree, std::size_t entries) {
  constexpr std::array<std::string_view, 3> kEnds = {" // menu\n", " /* menu */ // see /* there\n",
                                                     " /a /b //* \"menu\n"};
  std::string text;
  for (std::size_t entry = 0; entry < entries; ++entry) text.append("\"Open\" = \"Open\";").append(kEnds[entry % 3]);
  writeStrings(tree, text);
}

void writeStars(TreeWriter& tree, std::size_t comments) {
  std::string text;
  for (std::size_t comment = 0; comment < comments; ++comment) {
    text.append("/*").append(1 + comment % 61, '*').append("/ \"Open\" = \"Open\";\n");
  }
  writeStrings(tree, text);
}

void writeQuotes(TreeWriter& tree, std::size_t lines) {
  constexpr std::array<std::string_view, 3> kLines = {"\"Open\" \"Open\";\n", "\"Open\" = \"Open\n", "\"Open\n"};
  std::string text;
  for (std::size_t line = 0; line < lines; ++line) text += kLines[line % 3];
  writeStrings(tree, text);
}

}  // namespace glossmill::bench
