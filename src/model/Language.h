#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/LanguageCode.h"
#include "model/ProjectContext.h"
#include "model/Status.h"
#include "model/StatusTexts.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// One language of the project, or one candidate of the add-language dialog. A copy is independent.
class Language {
 public:
  /// The urlDepth that says that localizedStringUrl() names the strings file.
  static constexpr std::int64_t kStringsFile = -1;

  /// The code as used for the `.lproj` directory; an unknown directory name is kept as it is.
  const std::string& iso639() const { return m_code.text(); }
  void setIso639(std::string_view code) { m_code = LanguageCode(code); }
  LanguageCode code() const { return m_code; }

  /// The English name; none when the code is not in the ISO table.
  const std::optional<std::string>& description() const { return m_description; }
  void setDescription(std::optional<std::string> description) { m_description = std::move(description); }

  /// The `Localizable.strings` file when urlDepth() is kStringsFile, else the `.lproj` directory.
  const FileUrl& localizedStringUrl() const { return m_localizedStringUrl; }
  void setLocalizedStringUrl(FileUrl url) { m_localizedStringUrl = std::move(url); }

  bool isIso639_2() const { return m_isIso639_2; }
  void setIsIso639_2(bool three) { m_isIso639_2 = three; }
  bool inUse() const { return m_inUse; }
  void setInUse(bool inUse) { m_inUse = inUse; }

  /// kStringsFile, or the number of directories that the walk had entered when it met this one; 0 for an added
  /// language.
  std::int64_t urlDepth() const { return m_urlDepth; }
  void setUrlDepth(std::int64_t depth) { m_urlDepth = depth; }

  /// Asked of the project; without one, Incomplete.
  Status status(const ProjectContext* project) const;
  std::string statusString(const StatusTexts& texts, const ProjectContext* project) const;

 private:
  LanguageCode m_code;
  std::optional<std::string> m_description;
  FileUrl m_localizedStringUrl;
  bool m_isIso639_2 = false;
  bool m_inUse = false;
  std::int64_t m_urlDepth = 0;
};

using LanguageArray = std::vector<std::shared_ptr<Language>>;

}  // namespace glossmill
