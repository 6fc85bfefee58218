#include "Plan.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <utility>
#include <vector>

namespace faults {

namespace {

constexpr std::array<std::string_view, kKinds> kNames = {"open",     "opendir", "readdir", "read",   "stat",
                                                         "readlink", "write",   "fsync",   "rename", "mkdir",
                                                         "unlink",   "chmod",   "xattr",   "lock"};

constexpr std::pair<std::string_view, Action> kEffects[] = {
    {"EIO", {Effect::Fail, EIO}},
    {"EACCES", {Effect::Fail, EACCES}},
    {"EMFILE", {Effect::Fail, EMFILE}},
    {"ENOSPC", {Effect::Fail, ENOSPC}},
    {"EDQUOT", {Effect::Fail, EDQUOT}},
    {"EINTR", {Effect::Fail, EINTR}},
    {"ENOENT", {Effect::Fail, ENOENT}},
    {"EPERM", {Effect::Fail, EPERM}},
    {"short", {Effect::Short, 0}},
    {"end", {Effect::End, 0}},
    {"kill-before", {Effect::KillBefore, 0}},
    {"kill-after", {Effect::KillAfter, 0}},
    {"run", {Effect::RunBefore, 0}},
};

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> pieces(1);
  for (const char byte : text) {
    if (byte == separator) {
      pieces.emplace_back();
    } else {
      pieces.back() += byte;
    }
  }
  return pieces;
}

[[noreturn]] void giveUp(const std::string& what) {
  const std::string line = "faults: " + what + "\n";
  if (::syscall(SYS_write, STDERR_FILENO, line.data(), line.size()) < 0) _exit(126);
  _exit(125);
}

/// One wish of the plan.
struct Wish {
  bool isForAny = false;
  Kind kind = Kind::Open;
  unsigned long first = 0;
  bool isForLaterToo = false;
  Action action;

  bool meets(Kind called, unsigned long ofKind, unsigned long ofAll) const {
    if (!isForAny && called != kind) return false;
    const unsigned long number = isForAny ? ofAll : ofKind;
    return isForLaterToo ? number >= first : number == first;
  }
};

Wish wishOf(const std::string& text) {
  const std::vector<std::string> parts = split(text, ':');
  if (parts.size() != 3) giveUp("a wish has three parts: " + text);
  Wish wish;
  wish.isForAny = parts[0] == "any";
  bool known = wish.isForAny;
  for (std::size_t index = 0; index < kKinds; ++index) {
    if (parts[0] != kNames[index]) continue;
    wish.kind = static_cast<Kind>(index);
    known = true;
  }
  if (!known) giveUp("there is no kind of call " + parts[0]);
  wish.first = std::strtoul(parts[1].c_str(), nullptr, 10);
  wish.isForLaterToo = parts[1].back() == '+';
  for (const auto& [name, action] : kEffects) {
    if (parts[2] == name) wish.action = action;
  }
  if (wish.action.effect == Effect::None) giveUp("there is no effect " + parts[2]);
  return wish;
}

struct Plan {
  std::vector<std::string> roots;
  std::vector<Wish> wishes;
  std::string trace;
  std::array<std::atomic<unsigned long>, kKinds> counts{};
  std::atomic<unsigned long> count{0};

  Plan() : roots(split(environment("FAULTS_ROOT"), ':')), trace(environment("FAULTS_TRACE")) {
    const std::string text = environment("FAULTS_PLAN");
    if (text.empty()) return;
    for (const std::string& wish : split(text, ';')) wishes.push_back(wishOf(wish));
  }
};

Plan& plan() {
  static Plan* const kPlan = new Plan;  // calls come until the very end of the process
  return *kPlan;
}

bool isBelow(const std::string& path, const std::string& root) {
  if (root.empty() || !path.starts_with(root)) return false;
  return path.size() == root.size() || path[root.size()] == '/';
}

/// With calls of the kernel only, so that tracing is not traced.
void note(Kind kind, unsigned long ofKind, unsigned long ofAll, const std::string& path) {
  if (plan().trace.empty()) return;
  const std::string line =
      std::string(nameOf(kind)) + " " + std::to_string(ofKind) + " " + std::to_string(ofAll) + " " + path + "\n";
  const long file =
      ::syscall(SYS_openat, AT_FDCWD, plan().trace.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  if (file < 0) giveUp("the trace cannot be written");
  if (::syscall(SYS_write, file, line.data(), line.size()) < 0) giveUp("the trace cannot be written");
  ::syscall(SYS_close, file);
}

}  // namespace

std::string_view nameOf(Kind kind) {
  return kNames[static_cast<std::size_t>(kind)];
}

Action actionFor(Kind kind, const std::string& path) {
  Plan& all = plan();
  bool counts = false;
  for (const std::string& root : all.roots) counts = counts || isBelow(path, root);
  if (!counts) return {};
  const unsigned long ofKind = ++all.counts[static_cast<std::size_t>(kind)];
  const unsigned long ofAll = ++all.count;
  note(kind, ofKind, ofAll, path);
  for (const Wish& wish : all.wishes) {
    if (wish.meets(kind, ofKind, ofAll)) return wish.action;
  }
  return {};
}

void runCommand() {
  const std::string command = environment("FAULTS_COMMAND");
  const pid_t child = fork();
  if (child == 0) {
    unsetenv("LD_PRELOAD");
    execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  int status = 0;
  while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
}

}  // namespace faults
