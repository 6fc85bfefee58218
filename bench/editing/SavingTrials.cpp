#include "editing/SavingTrials.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "strings/StringsFileWriter.h"
#include "timing/Findings.h"

extern char** environ;

namespace glossmill::bench {

namespace fs = std::filesystem;

namespace {

void run(std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  pid_t process = 0;
  int status = -1;
  const bool started = posix_spawnp(&process, arguments.front(), nullptr, nullptr, arguments.data(), environ) == 0;
  if (!started || waitpid(process, &status, 0) != process || status != 0) giveUp("cannot run " + command.front());
}

std::string bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

SavingTrials::SavingTrials(ProjectWindowController& project, const fs::path& scratch)
    : m_project(project), m_saved(scratch / "saved"), m_copied(scratch / "copied") {
  copyFiles();
}

void SavingTrials::copyFiles() {
  for (const auto& language : *m_project.languagesList()) {
    const fs::path directory = m_saved / (language->iso639() + ".lproj");
    const fs::path copy = directory / "Localizable.strings";
    fs::create_directories(directory);
    fs::copy_file(language->localizedStringUrl().path(), copy);
    language->setLocalizedStringUrl(FileUrl(copy.string()));
  }
}

void SavingTrials::run(int rounds) {
  Samples saving;
  Samples copying;
  Samples copyingOver;
  save();  // the first one finds a disk whose free room nobody has used for long
  for (int round = 0; round < rounds; ++round) {
    saving.add(save());
    copying.add(copyAndFlush());
    copyingOver.add(copyOverAndFlush());
  }
  checkFiles();
  report("saving every language", saving);
  report("cp and sync of the same bytes", copying);
  report("cp and sync over former files", copyingOver);
}

double SavingTrials::save() {
  sync();
  const Stopwatch time;
  if (!m_project.saveProject()) giveUp("not every language could be saved");
  return time.seconds();
}

double SavingTrials::copyAndFlush() const {
  fs::remove_all(m_copied);
  sync();
  const Stopwatch time;
  bench::run({"cp", "-R", m_saved.string(), m_copied.string()});
  sync();
  return time.seconds();
}

double SavingTrials::copyOverAndFlush() const {
  sync();
  const Stopwatch time;
  bench::run({"cp", "-R", "--remove-destination", (m_saved / ".").string(), m_copied.string()});
  sync();
  return time.seconds();
}

void SavingTrials::checkFiles() const {
  std::size_t right = 0;
  for (const auto& language : *m_project.languagesList()) {
    const std::string text = stringsFileText(m_project.stringList(), language->code());
    if (bytesOf(language->localizedStringUrl().path()) == text) ++right;
  }
  report("files saved", std::to_string(right), std::to_string(m_project.languagesList()->size()));
}

}  // namespace glossmill::bench
