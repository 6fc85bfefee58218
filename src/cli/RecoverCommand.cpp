#include "cli/RecoverCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/DisplayText.h"
#include "cli/ProjectSession.h"
#include "host/Paths.h"
#include "safety/SavedVersions.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

using Fit = RecoverableEdit::Fit;

struct RecoverOptions {
  ProjectChoice project;
  bool apply = false;
  bool discard = false;
  WritingOptions writing;
};

std::string_view fitName(Fit fit) {
  switch (fit) {
    case Fit::Applies:
      return "applies";
    case Fit::Changed:
      return "changed since";
    case Fit::NoString:
      return "no such string";
    case Fit::NoLanguage:
      break;
  }
  return "no such language";
}

std::string textOrNone(const std::optional<std::string>& text) {
  return text ? inQuotes(printableLine(*text)) : "no entry";
}

std::string linesFor(const RecoverableEdit& one, const Console& console) {
  const JournalEdit& edit = one.edit;
  const std::string table = edit.table.empty() ? "" : printableLine(edit.table) + "  ";
  std::string lines = timeText(edit.time) + "  " + table + printableLine(edit.language) + "  " +
                      inQuotes(printableLine(edit.key)) + "\n    was      " + textOrNone(edit.before) +
                      "\n    unsaved  " + textOrNone(edit.after) + "\n";
  if (one.fit == Fit::Applies) return lines;
  const std::string now = one.fit == Fit::Changed ? textOrNone(one.now) + ", " : "";
  return lines + "    now      " + now + console.painted(Paint::Gap, std::string(fitName(one.fit))) + "\n";
}

Json jsonOr(const std::optional<std::string>& text) {
  return text ? Json(*text) : Json(nullptr);
}

Json jsonOf(const RecoverableEdit& one) {
  return {{"time", one.edit.time},
          {"table", one.edit.table},
          {"name", one.edit.key},
          {"language", one.edit.language},
          {"before", jsonOr(one.edit.before)},
          {"unsaved", jsonOr(one.edit.after)},
          {"now", jsonOr(one.now)},
          {"fit", fitName(one.fit)}};
}

void printEdits(const std::vector<RecoverableEdit>& edits, bool json, Console& console) {
  if (json) {
    JsonWriter writer(console);
    writer.list("edits", edits.size(), [&edits](std::size_t index) { return jsonOf(edits[index]); });
    writer.end();
    return;
  }
  if (edits.empty()) console.message("No edits of this project were left unsaved.");
  std::string text;
  for (const RecoverableEdit& edit : edits) text += linesFor(edit, console);
  console.data(text);
}

ExitCode list(const RecoverOptions& options, Console& console) {
  ProjectSession session(console, {});
  const ExitCode opened = session.open(options.project);
  if (opened != ExitCode::Fine) return opened;
  session.project().takeKeptEdits();
  printEdits(session.project().recoverableEdits(), options.writing.json, console);
  return ExitCode::Fine;
}

/// What does not fit is named and stays where it is.
ExitCode apply(const RecoverOptions& options, Console& console) {
  ProjectSession session(console, {.writing = &options.writing, .command = "recover --apply"});
  const ExitCode opened = session.openPackage(options.project);
  if (opened != ExitCode::Fine) return opened;
  session.project().takeKeptEdits();
  std::vector<RecoverableEdit> edits = session.project().recoverableEdits();
  const std::size_t all = edits.size();
  std::erase_if(edits, [](const RecoverableEdit& edit) { return edit.fit != Fit::Applies; });
  const std::size_t left = all - edits.size();
  session.project().recover(edits);
  session.addCounts("applied  " + counted(edits.size(), "edit") + "\n\n",
                    {{"applied", edits.size()}, {"notApplied", left}});
  const ExitCode saved = session.saveProject();
  if (left == 0) return saved;
  console.error(counted(left, "edit") + (left == 1 ? " does" : " do") + " not fit what is there now and " +
                (left == 1 ? "is" : "are") + " kept; see: glossmill-cli recover");
  return ExitCode::Unusable;
}

/// Needs nothing of what the project means.
ExitCode discard(const RecoverOptions& options, Console& console) {
  PosixFiles files;
  PosixSaveDisk disk;
  const FileUrl project = absoluteUrl(options.project.directory);
  if (files.kindOf(project) != EntryKind::Directory) {
    console.error("there is no directory " + inQuotes(options.project.directory));
    return ExitCode::Unusable;
  }
  KeptJournals journals(files, disk);
  journals.take(project);
  const std::size_t count = journals.edits().size();
  const bool pretends = options.writing.dryRun;
  const Outcome done = pretends ? Outcome(Done{}) : journals.retire([](const JournalEdit&) { return true; });
  if (!done) {
    console.error("cannot discard the edits: " + done.error().sentence);
    return ExitCode::Unusable;
  }
  if (options.writing.json) {
    JsonWriter writer(console);
    writer.member("discarded", count);
    writer.end();
  } else {
    console.data((pretends ? "would be discarded  " : "discarded  ") + counted(count, "edit") + "\n");
  }
  return ExitCode::Fine;
}

ExitCode recover(const RecoverOptions& options, Console& console) {
  if (options.discard) return discard(options, console);
  return options.apply ? apply(options, console) : list(options, console);
}

}  // namespace

void addRecoverCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<RecoverOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"recover", "List edits of the window that were never saved; apply or discard them",
                                  "~/Projects/Harbour --apply"},
                                 [options](Console& console) { return recover(*options, console); });
  addProject(command, options->project);
  addFlag(command, "--apply", options->apply, "Apply those that fit what is there now, and save");
  addFlag(command, "--discard", options->discard, "Forget them all");
  command.get_option("--apply")->excludes("--discard")->option_text(" ");
  command.get_option("--discard")->option_text(" ");
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
