#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "checks/CheckPolicy.h"
#include "checks/CheckedProject.h"
#include "checks/InconsistentCheck.h"
#include "checks/PlacedFinding.h"
#include "checks/SourceTexts.h"
#include "platform/Files.h"
#include "project/FindingPlaces.h"

namespace glossmill {

/// Which findings are wanted. Empty lists: all that the settings do not turn off, all languages, and all tables.
struct FindingsWish {
  std::vector<Check> checks = {};            ///< these are on, whatever the settings say
  std::vector<LanguageCode> languages = {};  ///< findings about no language come along
  std::vector<std::string> tables = {};      ///< ids; findings about no table come along
};

/// Finds what is wrong in a project, piece by piece: some thousand rows or one file at a time, so that a piece takes a
/// few milliseconds. One thread at a time, and any thread, also beside edits of the project: it knows nothing but the
/// copy that it was given, and reads files by itself. Whoever wants to cancel it takes no further step.
class FindingsRun {
 public:
  /// `project` and `files` outlive it.
  FindingsRun(const CheckedProject& project, const CheckSettings& settings, FindingsWish wish, FileReading& files);
  FindingsRun(const FindingsRun&) = delete;
  FindingsRun& operator=(const FindingsRun&) = delete;

  /// False when there was nothing left to do.
  bool step();
  /// From 0 to 1.
  double progress() const;
  /// After the last step, once.
  std::vector<PlacedFinding> take() { return m_places.take(); }

 private:
  /// Rows of one language.
  struct Slice {
    std::size_t language = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
  };

  bool counts(LanguageCode language, std::string_view table) const;
  void listSlices();
  void findInSlice(const Slice& slice);
  void findInRow(const CheckedLanguage& language, std::string_view code, std::size_t row);
  std::string_view baseCodeOf(std::size_t row);
  void findInconsistent(const CheckedLanguage& language);
  void add(Finding finding, const CheckedLanguage& language, std::size_t row);
  void listFiles();
  void listProblems();
  void listRepetitions();
  void listClassicFiles();
  bool mayShowMore(const CheckedFile& file) const;

  const CheckedProject& m_project;
  const FindingsWish m_wish;
  const CheckPolicy m_policy;
  FindingPlaces m_places;
  std::optional<SourceTexts> m_sources;  ///< from the first step on
  LanguageCode m_base;                   ///< of the row that was looked at last
  std::string_view m_baseCode;           ///< the same
  SameSources m_sameSources;
  std::vector<Slice> m_slices;
  std::size_t m_nextSlice = 0;
  bool m_listsFiles = true;     ///< when the slices are done
  std::size_t m_fileCount = 0;  ///< when they were listed
};

}  // namespace glossmill
