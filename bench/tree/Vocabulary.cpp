#include "tree/Vocabulary.h"

#include <algorithm>

namespace glossmill::bench {

namespace {

constexpr WordList kVerbs = {"open",    "close",   "save",    "rename",  "move",   "copy",     "paste",   "delete",
                             "import",  "export",  "print",   "preview", "search", "replace",  "select",  "insert",
                             "remove",  "restore", "update",  "reload",  "share",  "send",     "receive", "connect",
                             "pair",    "verify",  "confirm", "cancel",  "retry",  "skip",     "enable",  "disable",
                             "show",    "hide",    "expand",  "merge",   "split",  "sort",     "filter",  "group",
                             "lock",    "unlock",  "archive", "publish", "upload", "download", "record",  "play",
                             "pause",   "stop",    "rotate",  "resize",  "crop",   "scan",     "measure", "compare",
                             "convert", "encode",  "mark",    "flag",    "pin",    "mute",     "reset",   "choose"};

constexpr WordList kAdjectives = {
    "new",    "old",      "recent",   "hidden",   "shared",  "private", "public",  "local",   "remote",    "current",
    "last",   "first",    "next",     "selected", "missing", "invalid", "empty",   "full",    "temporary", "default",
    "custom", "personal", "common",   "secure",   "expired", "pending", "active",  "idle",    "offline",   "online",
    "large",  "small",    "wide",     "narrow",   "visible", "locked",  "broken",  "changed", "final",     "draft",
    "nearby", "distant",  "favorite", "frequent", "rare",    "primary", "second",  "smart",   "manual",    "quick",
    "slow",   "bright",   "dark",     "plain",    "rich",    "simple",  "partial", "whole",   "unread",    "sorted",
    "nested", "linked",   "daily",    "weekly"};

constexpr WordList kNouns = {
    "document", "folder",  "account",   "window",   "message",  "picture", "album",    "playlist",
    "calendar", "event",   "reminder",  "contact",  "group",    "device",  "network",  "printer",
    "password", "profile", "setting",   "language", "keyboard", "layout",  "template", "page",
    "chapter",  "section", "paragraph", "table",    "column",   "row",     "cell",     "chart",
    "legend",   "layer",   "brush",     "color",    "gradient", "shadow",  "filter",   "effect",
    "track",    "sample",  "channel",   "session",  "download", "upload",  "backup",   "archive",
    "volume",   "disk",    "project",   "target",   "scheme",   "branch",  "version",  "review",
    "comment",  "invoice", "order",     "receipt",  "ticket",   "route",   "station",  "location"};

constexpr WordList kTails = {
    "now",          "again",       "later",         "first",          "anyway",       "twice",          "here",
    "there",        "in place",    "at once",       "by name",        "by date",      "by size",        "by kind",
    "on this Mac",  "in the list", "as a copy",     "as text",        "as a file",    "for you",        "for everyone",
    "from disk",    "to disk",     "to the end",    "from the start", "with options", "without asking", "at startup",
    "when idle",    "every day",   "every hour",    "until noon",     "before lunch", "after work",     "over the air",
    "by cable",     "in color",    "in grey",       "in full",        "in part",      "to the left",    "to the right",
    "up",           "down",        "forward",       "back",           "to the trash", "to a friend",    "from a friend",
    "in the cloud", "at home",     "at the office", "on the road",    "in a tab",     "in a panel",     "in a sheet",
    "with sound",   "silently",    "slowly",        "quickly",        "step by step", "all together",   "one by one",
    "for good"};

constexpr std::size_t kSix = 63;

// Multiplying by an odd number is one to one, so neighbours get unlike words and no two indexes the same ones.
std::size_t scatter(std::size_t index, std::size_t range) {
  return index * std::size_t{0x9E3779B1} % range;
}

std::string dotted(std::string text) {
  std::replace(text.begin(), text.end(), ' ', '.');
  return text;
}

}  // namespace

const WordList& verbs() {
  return kVerbs;
}

const WordList& adjectives() {
  return kAdjectives;
}

const WordList& nouns() {
  return kNouns;
}

std::string capitalized(std::string_view word) {
  std::string text(word);
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

std::string keyText(std::size_t index) {
  const std::size_t words = scatter(index, kMaximalKeys);
  std::string text(kVerbs[words & kSix]);
  for (const std::string_view word :
       {kAdjectives[words >> 6U & kSix], kNouns[words >> 12U & kSix], kTails[words >> 18U & kSix]}) {
    text.append(" ").append(word);
  }
  switch (index % 16) {
    case 0:
    case 1:
    case 2:
      return dotted(text);
    case 3:
      return capitalized(text) + "\u2026";
    case 4:
      return capitalized(text) + ": %@";
    case 5:
      return capitalized(text) + "\\n%d";
    default:
      return capitalized(text);
  }
}

std::string className(std::size_t index) {
  constexpr std::array<std::string_view, 16> kRoles = {
      "Controller", "View",   "Cell",  "Manager", "Store",  "Panel",     "Window",  "Item",
      "Parser",     "Client", "Cache", "Queue",   "Loader", "Formatter", "Service", "Model"};
  const std::size_t words = scatter(index, kMaximalClasses);
  return capitalized(kAdjectives[words & kSix]) + capitalized(kNouns[words >> 6U & kSix]) +
         std::string(kRoles[words >> 12U]);
}

std::string commentText(std::size_t index) {
  constexpr std::array<std::string_view, 8> kPlaces = {"Button of the", "Title of the", "Menu item of the",
                                                       "Alert of the",  "Label in the", "Hint in the",
                                                       "Tab of the",    "Error of the"};
  const std::size_t words = scatter(index, kMaximalKeys);
  return std::string(kPlaces[index % kPlaces.size()]) + " " + std::string(kNouns[words >> 12U & kSix]);
}

}  // namespace glossmill::bench
