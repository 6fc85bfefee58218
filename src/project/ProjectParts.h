#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/LanguageDialogDelegates.h"
#include "edit/EditHistory.h"
#include "model/ArrayController.h"
#include "model/EditDoor.h"
#include "model/EditedTexts.h"
#include "model/IsoTable.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "model/Problem.h"
#include "model/ProjectRules.h"
#include "model/ScanReport.h"
#include "model/StatusTexts.h"
#include "model/StringsTable.h"
#include "model/TranslationCounts.h"
#include "platform/Host.h"
#include "project/ExchangeParts.h"
#include "project/LongJob.h"
#include "project/ProjectMoment.h"
#include "project/ProjectOpening.h"
#include "project/ReadFiles.h"
#include "project/SaveReport.h"
#include "project/ScanMessages.h"
#include "project/UnsavedWork.h"
#include "safety/WatchedReading.h"

namespace glossmill {

/// What stands behind the operations of ProjectWindowController: the host, the window, the services and the values of
/// the open project. Nothing but that class sees it.
class ProjectParts {
 public:
  using StringController = ArrayController<LocalizeString>;
  using LanguageController = ArrayController<Language>;

  ProjectParts(const ProjectParts&) = delete;
  ProjectParts& operator=(const ProjectParts&) = delete;

 protected:
  using LogText = std::function<void(const Message&)>;

  /// What is the same again after a project was read anew.
  struct BeforeReading {
    std::string key;                 ///< of the selected string
    std::string language;            ///< code of the selected one
    std::vector<JournalEdit> edits;  ///< that no save wrote
  };

  ProjectParts(const Host& host, ApplicationServices& application, LogText logText, LongJob::LoadSheet loadSheet);
  ~ProjectParts();

  Host m_host;
  ApplicationServices& m_application;
  StatusTexts m_statusTexts;
  ScanMessages m_scanMessages;

  Interface<ProjectWindowOutlets> m_window;
  LongJob m_longJob;

  std::shared_ptr<SelectLanguageWindowController> m_selectLanguageWindowController;
  std::shared_ptr<SelectLanguageWindowController> m_endedSelectLanguageWindowController;
  std::shared_ptr<LanguageWindowController> m_exportLanguageWindowController;
  std::shared_ptr<LanguageWindowController> m_baseLanguageWindowController;
  std::shared_ptr<LanguageWindowController> m_importLanguageWindowController;

  StringController m_stringController;      ///< its content is the string list
  LanguageController m_languageController;  ///< its content is the list of languages
  std::vector<FileUrl> m_fileList;
  std::vector<FileUrl> m_packages;
  StringsTables m_tables;
  std::vector<Problem> m_problems;
  StringArray m_filteredStringList;  ///< held back from the string table by the filter
  mutable TranslationCounts m_counts;
  EditDoor m_edits;
  EditedTexts m_edited;  ///< where only these are saved
  EditHistory m_history;
  UnsavedWork m_unsaved;
  ProjectObservers m_observers;

  FileUrl m_projectDirectory;
  ProjectOpening m_opening;  ///< as it was wanted
  ProjectOptions m_options;
  SettingsReader m_settingsReader;
  const ProjectRules* m_rules;  ///< those of the options
  IsoTable m_iso639Dict;
  ScanMemory m_scanMemory;  ///< written by phase one
  ScanReport m_scanReport;
  ReadFiles m_readFiles;
  std::vector<UnreadPlace> m_unread;  ///< of the open project
  SaveReport m_lastSave;
  ExchangeParts m_exchange;
  std::optional<BeforeReading> m_before;  ///< while it is read anew
  bool m_changed = false;
  bool m_opened = false;
};

}  // namespace glossmill
