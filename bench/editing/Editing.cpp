// glossmill-bench-editing DIR SCRATCH: opens the project in DIR without a window and measures what a person does with
// it: filter, edit, export, import, fill, save. Writes into the directory SCRATCH and where XDG_STATE_HOME points to.

#include <cstdio>
#include <string>

#include "editing/EditTrials.h"
#include "editing/HeadlessProject.h"
#include "editing/JobTrials.h"
#include "editing/SavingTrials.h"
#include "editing/SuggestionTrials.h"
#include "editing/UnsavedTrials.h"
#include "host/AllocatorSettings.h"
#include "timing/Findings.h"

namespace {

constexpr int kFilterRounds = 15;
constexpr int kStatusRounds = 1000;
constexpr int kJobRounds = 5;
constexpr int kSavingRounds = 5;
constexpr int kEditRounds = 5000;
constexpr int kSuggestionRounds = 500;
constexpr std::size_t kBatch = 100'000;
constexpr int kBatchRounds = 5;

}  // namespace

int main(int argumentCount, char** arguments) {
  using namespace glossmill;
  setAllocatorForScans();
  if (argumentCount != 3) {
    std::fputs("usage: glossmill-bench-editing DIR SCRATCH\n", stderr);
    return 2;
  }
  const std::string scratch = arguments[2];
  bench::HeadlessProject project(arguments[1]);
  bench::runSuggestionTrials(project.controller(), kSuggestionRounds);
  bench::SavingTrials(project.controller(), scratch).run(kSavingRounds);
  bench::JobTrials(project.controller(), project.host().files, FileUrl(scratch), [&] {
    project.host().runUntilIdle();
  }).run("command line", kJobRounds);
  bench::EditTrials edits(project);
  edits.filter(kFilterRounds);
  edits.statuses(kStatusRounds);
  bench::UnsavedTrials unsaved(project, arguments[1]);
  unsaved.singleEdits(kEditRounds);
  unsaved.batches(kBatch, kBatchRounds);
  return 0;
}
