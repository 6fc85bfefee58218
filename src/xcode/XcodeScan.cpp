#include "xcode/XcodeScan.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "xcode/CallTargets.h"
#include "xcode/CatalogEntries.h"
#include "xcode/JobsInOrder.h"
#include "xcode/KeyHolders.h"
#include "xcode/ProjectPaths.h"
#include "xcode/SourceReading.h"
#include "xcode/TableRows.h"

namespace glossmill {

namespace {

/// What the first phase leaves to the second.
struct XcodeScanState : ScanState {
  XcodeScanState(FileReading& files, const std::string& root, const std::vector<std::string>& exclude)
      : folders(files, root), excluded(exclude) {}

  FolderListings folders;
  PathGlobs excluded;
  std::vector<XcodePackage> packages;
  MemberFiles members;
  std::vector<FileUrl> sources;  ///< those of the members
  CallList calls;
  WholeTexts texts;
};

std::vector<Routine> ownRoutines(const ProjectOptions& options) {
  std::vector<Routine> routines;
  for (const std::string& description : options.xcode.routines) {
    Result<Routine> routine = parseRoutine(description);
    if (routine) routines.push_back(std::move(routine.value()));
  }
  return routines;
}

class SourcesPhase {
 public:
  SourcesPhase(const FileUrl& directory, const ScanInput& input, ScanMemory& memory, ScanResult& result)
      : m_input(input), m_memory(memory), m_result(result) {
    auto state = std::make_unique<XcodeScanState>(input.files, directory.path(), input.options.xcode.exclude);
    m_state = state.get();
    result.state = std::move(state);
  }

  void run() {
    const PackageInput packages{m_state->folders, m_state->excluded, m_input.canceled};
    const auto report = [this](Problem problem) { m_result.problems.push_back(std::move(problem)); };
    m_memory.projectPackage.reset();
    m_state->packages = readPackages(chosenPackages(packages), packages, report);
    if (m_state->packages.empty()) return m_input.listener.happened(NoPackageFound{});
    tellPackages();
    m_state->members = collectMembers(m_state->packages, packages, report);
    for (const MemberFile& source : m_state->members.sources) m_state->sources.emplace_back(source.path);
    m_result.fileList = m_state->sources;
    ReadSources found = readSources(m_state->members.sources, ownRoutines(m_input.options), m_input, report);
    m_state->calls = std::move(found.calls);
    m_state->texts = std::move(found.texts);
  }

 private:
  std::vector<std::string> chosenPackages(const PackageInput& packages) const {
    std::vector<std::string> chosen;
    for (const FileUrl& package : m_input.options.xcode.packages) chosen.push_back(package.path());
    return chosen.empty() ? findPackages(packages) : chosen;
  }

  void tellPackages() {
    for (const XcodePackage& package : m_state->packages) m_result.packages.emplace_back(package.path);
    m_memory.projectPackage = m_result.packages.front();
    for (const FileUrl& package : m_result.packages) m_input.listener.happened(PackageFound{package});
  }

  const ScanInput& m_input;
  ScanMemory& m_memory;
  ScanResult& m_result;
  XcodeScanState* m_state = nullptr;
};

class StringsPhase {
 public:
  StringsPhase(const ScanInput& input, ScanResult& result)
      : m_input(input), m_result(result), m_state(static_cast<XcodeScanState&>(*result.state)) {}

  void run() {
    readTables();
    if (!m_input.canceled.isSet()) takeCalls();
    if (!m_input.canceled.isSet()) makeRows();
    for (const MemberFile& file : m_state.members.unread) {
      report({FileUrl(file.path), 0, 0, "not-read", "Files of this kind are not read"});
    }
    finishProblems();
  }

 private:
  void report(Problem problem) { m_result.problems.push_back(std::move(problem)); }

  void readTables() {
    const auto reporter = [this](Problem problem) { report(std::move(problem)); };
    m_tables =
        collectTables(m_state.members.strings, m_state.members.catalogs,
                      {m_state.packages, m_state.folders, m_state.excluded, m_input.options.xcode.sourceLanguage});
    const std::function<void(Problem)> report = reporter;
    CatalogReading catalogs(m_tables, m_input, report);
    const std::vector<StringsTable::File*> files = filesInOrder();
    JobsInOrder<ReadStringsFile> jobs(
        files.size(), [&](std::size_t number) { return readStringsFile(*files[number], m_input.files); },
        [&](std::size_t first) {
          for (std::size_t number = first; number < files.size(); ++number) {
            m_input.listener.happened(StringsFileExpected{files[number]->file});
          }
        });
    for (TableList::Table& table : m_tables.tables) {
      if (m_input.canceled.isSet()) return;
      TableEntries entries =
          isCatalog(table) ? catalogs.entriesOf(table, m_result.stringList.arena())
                           : takeTable(
                                 table, m_result.stringList.arena(), m_input, [&] { return jobs.next(); }, reporter);
      m_rows.emplace_back(table.table, std::move(entries), m_result.stringList.sharedArena());
    }
  }

  std::vector<StringsTable::File*> filesInOrder() const {
    std::vector<StringsTable::File*> files;
    for (const TableList::Table& table : m_tables.tables) {
      if (isCatalog(table)) continue;
      for (const std::size_t file : readingOrder(*table.table)) files.push_back(&table.table->files[file]);
    }
    return files;
  }

  static bool isCatalog(const TableList::Table& table) { return table.table->format == StringsTable::Format::Catalog; }

  /// Of a strings table and a catalog of one name in one directory those are meant that hold the key, or else the
  /// first.
  void dropTwins(std::vector<std::uint32_t>& numbers, std::string_view key) const {
    for (std::size_t at = 0; at + 1 < numbers.size();) {
      const bool areTwins =
          m_tables.tables[numbers[at]].table->directory == m_tables.tables[numbers[at + 1]].table->directory;
      const bool firstHolds = m_rows[numbers[at]].holdsKey(key);
      const bool secondHolds = m_rows[numbers[at + 1]].holdsKey(key);
      if (!areTwins || (firstHolds && secondHolds)) {
        ++at;
      } else {
        numbers.erase(numbers.begin() + static_cast<std::ptrdiff_t>(secondHolds ? at : at + 1));
      }
    }
  }

  void takeCalls() {
    CallTargets targets(m_tables.tables, m_state.packages);
    const CallList& list = m_state.calls;
    KeyHolders holders(list, m_rows);
    for (const CallList::Call& call : list.calls()) {
      if (m_input.canceled.isSet()) return;
      const std::string_view key = list.keys().key(call.key);
      const std::string_view name = list.tables().key(call.table);
      CallTargets::TableNumbers numbers = targets.tablesFor(
          name, m_state.members.sources[call.source], [&](const CallTargets::TableNumbers& named) -> const auto& {
            return holders.of(call, named);
          });
      dropTwins(numbers, key);
      if (numbers.empty()) addCall(fileless(call.table, name), key, call);
      for (const std::uint32_t number : numbers) {
        addCall(number, key, call);
        holders.add(call, number);
      }
    }
  }

  void addCall(std::uint32_t number, std::string_view key, const CallList::Call& call) {
    m_tables.tables[number].table->hasCalls = true;
    m_rows[number].addCall(key, call, m_state.sources[call.source]);
  }

  /// A table that nobody has made a file for. CallTargets does not know these.
  std::uint32_t fileless(KeyIndex::Number number, std::string_view name) {
    const auto [known, isNew] = m_fileless.emplace(number, static_cast<std::uint32_t>(m_rows.size()));
    if (!isNew) return known->second;
    auto table = std::make_shared<StringsTable>();
    table->id = table->name = name;
    m_tables.tables.push_back({table, {}, {}});
    m_rows.emplace_back(std::move(table), TableEntries(), m_result.stringList.sharedArena());
    return known->second;
  }

  void makeRows() {
    const bool hasUnused = std::any_of(m_rows.begin(), m_rows.end(),
                                       [this](const TableRows& rows) { return rows.hasUnused(m_state.texts); });
    if (hasUnused) readDocuments();
    StringArray records;
    std::vector<std::uint32_t> order;
    for (std::uint32_t number = 0; number < m_rows.size(); ++number) order.push_back(number);
    std::sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) {
      return m_tables.tables[a].table->id < m_tables.tables[b].table->id;
    });
    for (const std::uint32_t number : order) {
      m_rows[number].finish(m_state.texts, records);
      m_result.tables.push_back(m_tables.tables[number].table);
    }
    m_result.stringList.adopt(std::move(records));
    makeLanguages();
  }

  /// They may hold keys that no call names.
  void readDocuments() {
    for (const MemberFile& document : m_state.members.documents) {
      if (m_input.canceled.isSet()) return;
      const Result<std::string> text = readMemberText(document, m_input.files);
      if (text) m_state.texts.addDocument(text.value());
    }
  }

  void makeLanguages() {
    for (const std::string& code : m_tables.languages) {
      auto language = std::make_shared<Language>();
      language->setIso639(code);
      language->setDescription(m_input.isoTable.nameOf(code));
      place(*language);
      m_result.languagesList->push_back(std::move(language));
    }
  }

  /// At its first file, or at the directory where that would lie.
  void place(Language& language) const {
    for (const std::shared_ptr<StringsTable>& table : m_result.tables) {
      const StringsTable::File* file = table->find(language.code());
      if (!file) continue;
      language.setLocalizedStringUrl(file->file);
      return language.setUrlDepth(Language::kStringsFile);
    }
    for (const std::shared_ptr<StringsTable>& table : m_result.tables) {
      if (table->directory.empty()) continue;
      return language.setLocalizedStringUrl(table->directory.appending(language.iso639() + ".lproj"));
    }
  }

  void finishProblems() {
    std::stable_sort(m_result.problems.begin(), m_result.problems.end(), [](const Problem& a, const Problem& b) {
      return std::tie(a.file.path(), a.line, a.column) < std::tie(b.file.path(), b.line, b.column);
    });
    for (const Problem& problem : m_result.problems) m_input.listener.happened(ProblemFound{problem});
  }

  const ScanInput& m_input;
  ScanResult& m_result;
  XcodeScanState& m_state;
  TableList m_tables;
  std::vector<TableRows> m_rows;  ///< by the numbers of the tables
  std::map<KeyIndex::Number, std::uint32_t> m_fileless;
};

}  // namespace

void readXcodeSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory, ScanResult& result) {
  SourcesPhase(directory, input, memory, result).run();
}

void readXcodeStrings(const ScanInput& input, ScanResult& result) {
  StringsPhase(input, result).run();
  result.state.reset();
}

}  // namespace glossmill
