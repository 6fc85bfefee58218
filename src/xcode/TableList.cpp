#include "xcode/TableList.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace glossmill {

namespace {

constexpr std::string_view kLanguageSuffix = ".lproj";
constexpr std::string_view kStringsSuffix = ".strings";
constexpr std::string_view kCatalogSuffix = ".xcstrings";
constexpr std::string_view kAllLanguages = "mul";  // names the directory of catalogs

/// A strings file taken apart: /p/en.lproj/Boats.strings.
struct StringsPath {
  std::string directory;  ///< "/p"
  std::string language;   ///< "en"
  std::string name;       ///< "Boats"
};

StringsPath takenApart(std::string_view path) {
  const std::string_view folder = directoryOf(path);
  std::string_view language = nameOfPath(folder);
  std::string_view name = nameOfPath(path);
  language.remove_suffix(kLanguageSuffix.size());
  name.remove_suffix(kStringsSuffix.size());
  return {std::string(directoryOf(folder)), std::string(language), std::string(name)};
}

/// The names of the directories in the order of the languages that they are of.
std::vector<std::string> namesByLanguage(const LanguageDirectories& directories) {
  std::vector<std::string> names = directories.names();
  std::sort(names.begin(), names.end(), [&directories](const std::string& a, const std::string& b) {
    return directories.languageOf(a) < directories.languageOf(b);
  });
  return names;
}

class TableCollector {
 public:
  explicit TableCollector(const TableInput& input) : m_input(input) {}

  TableList collect(const std::vector<MemberFile>& strings, const std::vector<MemberFile>& catalogs) {
    for (const MemberFile& file : strings) {
      StringsPath parts = takenApart(file.path);
      m_tables[{parts.directory, parts.name}][parts.language] = &file;
    }
    for (const auto& [place, members] : m_tables) addTable(place.first, place.second, members);
    for (const MemberFile& catalog : catalogs) addCatalog(catalog);
    std::sort(m_list.tables.begin(), m_list.tables.end(),
              [](const TableList::Table& a, const TableList::Table& b) { return a.table->id < b.table->id; });
    m_list.languages.assign(m_languages.begin(), m_languages.end());
    return std::move(m_list);
  }

 private:
  using Members = std::map<std::string, const MemberFile*>;  ///< by the names of their directories

  void addTable(const std::string& directory, const std::string& name, const Members& members) {
    TableList::Table& added = m_list.tables.emplace_back();
    const LanguageDirectories& beside = directoriesIn(directory, members.begin()->second->package);
    added.table = std::make_shared<StringsTable>();
    added.table->name = name;
    added.table->directory = FileUrl(directory);
    added.table->id = idOf(directory, name);
    addFiles(added, beside, members);
    added.table->development = developmentOf(*added.table, beside);
    for (const std::string& language : beside.names()) {
      if (beside.isOwnLanguage(language) && language != kAllLanguages) m_languages.emplace(beside.languageOf(language));
    }
    for (const StringsTable::File& file : added.table->files) m_languages.insert(file.language.text());
  }

  void addFiles(TableList::Table& added, const LanguageDirectories& beside, const Members& members) {
    for (const std::string& language : namesByLanguage(beside)) {
      const auto member = members.find(language);
      const bool isMember = member != members.end();
      const std::optional<MemberFile> file =
          isMember ? *member->second : sibling(added.table->directory.path(), language, added.table->name);
      if (!file) continue;
      added.table->files.push_back(
          {FileUrl(file->path), LanguageCode(beside.languageOf(language)), isMember, file->encoding, false});
      added.files.push_back(*file);
      std::vector<std::uint32_t> all;
      std::set_union(added.targets.begin(), added.targets.end(), file->targets.begin(), file->targets.end(),
                     std::back_inserter(all));
      added.targets = std::move(all);
    }
  }

  /// A file that no package names, in another language's directory.
  std::optional<MemberFile> sibling(const std::string& directory, const std::string& language,
                                    const std::string& name) {
    std::string path =
        pathInside(pathInside(directory, language + std::string(kLanguageSuffix)), name + std::string(kStringsSuffix));
    if (m_input.excluded.take(pathBelowRoot(m_input.folders.root(), path))) return std::nullopt;
    if (m_input.folders.kindOf(path) != EntryKind::File) return std::nullopt;
    return MemberFile{std::move(path), {}, 0, {}};
  }

  /// In an `.lproj`, where Xcode puts those of interface files, it stands for the directory around that.
  void addCatalog(const MemberFile& catalog) {
    const std::string_view folder = directoryOf(catalog.path);
    const std::string directory(folder.ends_with(kLanguageSuffix) ? directoryOf(folder) : folder);
    const std::string_view file = nameOfPath(catalog.path);
    const std::string name(file.substr(0, file.size() - kCatalogSuffix.size()));
    const bool isTaken = m_tables.contains({directory, name}) || !m_catalogs.emplace(directory, name).second;
    const LanguageDirectories& beside = directoriesIn(directory, catalog.package);
    TableList::Table& added = m_list.tables.emplace_back();
    added.table = std::make_shared<StringsTable>();
    added.table->format = StringsTable::Format::Catalog;
    added.table->name = name;
    added.table->directory = FileUrl(directory);
    added.table->catalog = FileUrl(catalog.path);
    added.table->id = idOf(directory, isTaken ? std::string(file) : name);
    added.table->development = LanguageCode(beside.development());
    added.targets = catalog.targets;
    for (const std::string& language : beside.names()) {
      if (beside.isOwnLanguage(language) && language != kAllLanguages) m_languages.emplace(beside.languageOf(language));
    }
  }

  std::string idOf(const std::string& directory, const std::string& name) const {
    const bool isRoot = directory == m_input.folders.root();
    return isRoot ? name : pathInside(pathBelowRoot(m_input.folders.root(), directory), name);
  }

  /// Where the development language has no file, Base holds its texts all the same.
  static LanguageCode developmentOf(const StringsTable& table, const LanguageDirectories& beside) {
    const LanguageCode development(beside.development());
    const LanguageCode base("Base");
    return !table.find(development) && table.find(base) ? base : development;
  }

  const LanguageDirectories& directoriesIn(const std::string& directory, std::uint32_t package) {
    const auto known = m_directories.find(directory);
    if (known != m_directories.end()) return known->second;
    std::vector<std::string> names;
    const std::vector<DirectoryEntry>* entries = m_input.folders.entries(directory);
    for (const DirectoryEntry& entry : entries ? *entries : std::vector<DirectoryEntry>()) {
      if (entry.kind != EntryKind::Directory || !entry.name.ends_with(kLanguageSuffix)) continue;
      names.push_back(entry.name.substr(0, entry.name.size() - kLanguageSuffix.size()));
    }
    return m_directories.emplace(directory, LanguageDirectories(std::move(names), regionOf(package))).first->second;
  }

  std::string_view regionOf(std::uint32_t package) const {
    if (!m_input.sourceLanguage.empty()) return m_input.sourceLanguage;
    const std::string& region = m_input.packages[package].file.developmentRegion;
    return region.empty() ? std::string_view("en") : std::string_view(region);
  }

  const TableInput& m_input;
  std::map<std::pair<std::string, std::string>, Members> m_tables;  ///< by directory and name
  std::set<std::pair<std::string, std::string>> m_catalogs;
  std::map<std::string, LanguageDirectories> m_directories;
  std::set<std::string> m_languages;
  TableList m_list;
};

}  // namespace

TableList collectTables(const std::vector<MemberFile>& strings, const std::vector<MemberFile>& catalogs,
                        const TableInput& input) {
  return TableCollector(input).collect(strings, catalogs);
}

}  // namespace glossmill
