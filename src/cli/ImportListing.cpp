#include "cli/ImportListing.h"

#include "checks/CheckList.h"
#include "cli/DisplayText.h"
#include "text/PrintableText.h"
#include "text/TextDifference.h"

namespace glossmill {

namespace {

std::string_view nameOf(ImportItem::Kind kind) {
  constexpr std::string_view kNames[] = {"new", "changed", "unchanged", "unknown"};
  return kNames[static_cast<std::size_t>(kind)];
}

/// Of what would be taken; nothing for a key that the project does not have.
std::vector<Finding> findingsOf(const ImportItem& item, const RowChecks& checks) {
  if (!item.edit.record) return {};
  return checks.findings(*item.edit.record, item.edit.language, item.edit.after);
}

/// On one line: line breaks and tabs as they are typed elsewhere.
std::string shown(std::string_view text) {
  std::string line;
  for (const char byte : text) {
    if (byte == '\n') {
      line += "\\n";
    } else if (byte == '\t') {
      line += "\\t";
    } else {
      line += byte;
    }
  }
  return printableLine(line);
}

std::string marked(std::string_view text, std::size_t begin, std::size_t end, Paint paint, const Console& console) {
  const std::string middle = shown(text.substr(begin, end - begin));
  return shown(text.substr(0, begin)) + (middle.empty() ? "" : console.painted(paint, middle)) +
         shown(text.substr(end));
}

void appendTexts(std::string& text, const Edit& edit, const Console& console) {
  const std::string_view after = *edit.after;
  const std::string_view before = edit.before ? std::string_view(*edit.before) : std::string_view();
  const TextDifference difference = differenceOf(before, after);
  if (edit.before) {
    text += "  - " + marked(before, difference.begin, difference.endBefore, Paint::Gap, console) + "\n";
  }
  text += "  + " + marked(after, difference.begin, difference.endAfter, Paint::Good, console) + "\n";
}

std::string headOf(const ImportItem& item) {
  std::string head = std::string(nameOf(item.kind)) + ": " + item.edit.language.text() + ": ";
  if (!item.table.empty()) head += printableLine(item.table) + ": ";
  head += "\"" + shown(item.key) + "\"";
  if (item.isUnsure && item.changesSomething()) head += item.isChosen ? " (fuzzy)" : " (fuzzy, not taken)";
  if (!item.isUnsure && item.changesSomething() && !item.isChosen) head += " (not taken)";
  return head + "\n";
}

Json findingsJson(const ImportItem& item, const RowChecks& checks) {
  Json findings = Json::array();
  for (const Finding& finding : findingsOf(item, checks)) {
    findings.push_back({{"check", entryOf(finding.check).name},
                        {"severity", nameOf(finding.severity)},
                        {"text", sentenceOf(finding)}});
  }
  return findings;
}

Json lineJson(std::uint32_t line) {
  return line == 0 ? Json() : Json(line);
}

Json itemJson(const ImportItem& item, const RowChecks& checks) {
  return {{"kind", nameOf(item.kind)},
          {"language", item.edit.language.text()},
          {"table", item.table.empty() ? Json() : Json(item.table)},
          {"key", item.key},
          {"before", item.edit.before ? Json(*item.edit.before) : Json()},
          {"after", *item.edit.after},
          {"fuzzy", item.isUnsure},
          {"taken", item.isChosen},
          {"line", lineJson(item.line)},
          {"findings", findingsJson(item, checks)}};
}

std::string rejectedText(const RejectedLine& line) {
  return (line.line == 0 ? "" : "line " + std::to_string(line.line) + ": ") + line.sentence;
}

}  // namespace

std::string importListing(const ImportPlan& plan, const RowChecks& checks, const Console& console) {
  std::string text;
  for (const ImportItem& item : plan.items()) {
    if (item.kind == ImportItem::Kind::Unchanged) continue;
    text += headOf(item);
    if (item.changesSomething()) appendTexts(text, item.edit, console);
    for (const Finding& finding : findingsOf(item, checks)) {
      text += "    " + std::string(nameOf(finding.severity)) + ": " + shown(sentenceOf(finding)) + " [" +
              std::string(entryOf(finding.check).name) + "]\n";
    }
  }
  for (const RejectedLine& line : plan.rejected()) text += "rejected: " + shown(rejectedText(line)) + "\n";
  return text;
}

Json importJson(const ImportPlan& plan, const RowChecks& checks) {
  Json items = Json::array();
  for (const ImportItem& item : plan.items()) items.push_back(itemJson(item, checks));
  Json rejected = Json::array();
  for (const RejectedLine& line : plan.rejected()) {
    rejected.push_back({{"line", lineJson(line.line)}, {"text", line.sentence}});
  }
  return {{"entries", std::move(items)}, {"rejected", std::move(rejected)}};
}

void mentionNotes(const ImportPlan& plan, const std::string& file, const std::string& language, Console& console) {
  for (const ImportNote& note : plan.notes()) {
    switch (note.kind) {
      case ImportNote::Kind::OtherLanguage:
        console.note(inQuotes(file) + " is in " + note.language + ", and was taken for " + language);
        break;
      case ImportNote::Kind::LackedLanguage:
        console.note("the project has no language " + note.language + "; its texts were left out");
        break;
      case ImportNote::Kind::OtherProject:
        console.note("the project has no key of " + inQuotes(file) + "; it seems to belong to another one");
        break;
    }
  }
}

void mentionRejected(const ImportPlan& plan, Console& console) {
  for (const RejectedLine& line : plan.rejected()) console.note("left out: " + rejectedText(line));
}

}  // namespace glossmill
