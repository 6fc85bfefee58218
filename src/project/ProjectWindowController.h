#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/ProjectContext.h"
#include "project/ProjectParts.h"
#include "project/Recovery.h"

namespace glossmill {

class ScanRun;
struct Replacement;
struct UnitMaker;

/// Owns the open project for its whole life and offers its operations: the rules are in modules, this class asks the
/// host, calls one module, adopts the result and tells the window. Main thread, but for the operations marked
/// "background".
class ProjectWindowController : public ProjectContext,
                                public LanguageWindowControllerDelegate,
                                public SelectLanguageWindowControllerDelegate,
                                private ProjectParts {
 public:
  using ProjectParts::LanguageController;
  using ProjectParts::StringController;

  /// `host` and `application` outlive the controller.
  ProjectWindowController(const Host& host, ApplicationServices& application);
  ~ProjectWindowController() override;

  // ---- State: ProjectWindowController.cpp ----

  /// Loads the window on first use and brings it to the front.
  void showWindow();
  /// Empties the project and the log. What the last scan read of the project file stays (rule 35), so that a later scan
  /// whose project file cannot be read tests membership against it.
  void clearProject();
  /// Who wants to hear what becomes of the project.
  ProjectObservers& observers() { return m_observers; }
  /// Any thread.
  void logText(const Message& message);

  bool changed() const { return m_changed; }
  void setChanged(bool changed);
  bool opened() const { return m_opened; }
  const FileUrl& projectDirectory() const { return m_projectDirectory; }
  /// The package that the last scan took; nothing when it found none.
  const std::optional<FileUrl>& projectPackage() const { return m_scanMemory.projectPackage; }
  const std::optional<std::string>& projectFileData() const { return m_scanMemory.projectFileData; }
  const std::vector<FileUrl>& fileList() const { return m_fileList; }
  const StringArray& stringList() const { return *m_stringController.content(); }
  const StringArray& filteredStringList() const { return m_filteredStringList; }
  /// Shared: a chooser keeps the array that it was given.
  const std::shared_ptr<LanguageArray>& languagesList() const { return m_languageController.content(); }
  const IsoTable& iso639Dict() const { return m_iso639Dict; }
  const FileUrl& actualParseFileName() const { return m_scanMemory.actualParseFileName; }
  const std::shared_ptr<Language>& actualLanguage() const { return m_scanMemory.actualLanguage; }
  std::int64_t actualDirectoryDepth() const { return m_scanMemory.actualDirectoryDepth; }
  StringController& stringController() { return m_stringController; }
  LanguageController& languageController() { return m_languageController; }
  const StatusTexts& statusTexts() const { return m_statusTexts; }
  /// What the scan of the open project left out.
  const ScanReport& scanReport() const { return m_scanReport; }
  /// What of the open project the system did not give, or not completely.
  const std::vector<UnreadPlace>& unread() const { return m_unread; }
  // What xcode's rules found beside; empty under the classic rules.
  const std::vector<FileUrl>& packages() const { return m_packages; }
  const StringsTables& tables() const { return m_tables; }
  const std::vector<Problem>& problems() const { return m_problems; }
  /// The files as they were read or written last.
  const ReadFiles& readFiles() const { return m_readFiles; }
  /// Whether the long-time sheet was begun and not yet closed.
  bool longJobRunning() const { return m_longJob.isRunning(); }

  // ---- Opening and the long-job pattern: ProjectWindowControllerOpening.cpp ----

  void openProjectButton() { openProject(FileUrl()); }
  /// Closes the open project, asks for a directory, with the panel at `start` unless it is empty, and starts the scan.
  /// True when a scan was started.
  bool openProject(const FileUrl& start, const ProjectOptions& options = {});
  /// The same for a directory that is known, without the panel.
  bool openProjectAt(const FileUrl& directory, const ProjectOptions& options = {});
  /// Asked before each scan; an error is told in an alert, and nothing is read.
  void setSettingsReader(SettingsReader reader) { m_settingsReader = std::move(reader); }
  /// What the user has opened: the project's directory, or a package in it.
  const FileUrl& openedAs() const { return m_opening.directory; }
  /// By which rules, and how else, the project was opened.
  const ProjectOptions& projectOptions() const { return m_options; }
  /// Reads the open project anew, selects again what was selected, and applies the edits again that no save wrote, but
  /// for those whose text is another one by now: they are left as those of a former session. Asks before edits are lost
  /// for want of a journal; false when everything stays as it is.
  bool reloadProject();
  /// Whether nothing is lost by that, or may be, which is asked.
  bool mayReadAnew();
  /// The same without a question.
  void readAnew() { readAnew(m_opening.directory); }
  /// As what the user opens it from now on.
  void readAnew(const FileUrl& opened);
  bool parseProject();
  /// The sheet's cancel button.
  void longTimeCanceled() { m_longJob.cancel(); }
  /// Closes the sheet. Also called when the sheet has ended, so it is harmless on a closed one.
  void didEndLongTimeSheetReturnCodeContextInfo() { m_longJob.end(); }
  void updateLongTerm(double value) { m_longJob.setProgress(value); }

  // ---- The scan's phases: ProjectWindowControllerScan.cpp ----

  /// Phase one. Background.
  void parseFileList(const FileUrl& directory, std::shared_ptr<ScanRun> scan);
  void endParseFileList(std::shared_ptr<ScanRun> scan);
  /// Phase two. A cancel noticed in it ends it without a word to the main thread, so the sheet stays up (rule 29).
  /// Background.
  void parseLocalizableStringsList(std::shared_ptr<ScanRun> scan);
  void endParseLocalizeableStringList(ScanRun& scan);

  // ---- Filter, status and navigation: ProjectWindowControllerEditing.cpp ----

  void changeStringFilter();
  void stringChangedNotification();
  std::int64_t totalLanguages() const override;
  std::shared_ptr<LocalizeString> selectedString() const override;
  std::shared_ptr<Language> selectedLanguage() const override;
  /// Counts the records of stringList() only; those that the filter holds back are complete.
  Status languageStatus(const Language& language) const override;
  std::string languageStatusString(const Language& language) const override;
  /// How many records of stringList() have no translation in this language.
  std::size_t missingTranslations(const Language& language) const;
  void applyEdit(EditKind kind, const Edit& edit) override { m_edits.applyEdit(kind, edit); }
  /// Makes the replacements that still fit, as one step; how many they were.
  std::size_t replaceTexts(const std::vector<Replacement>& replacements);
  /// For whoever wants to hear of every edit.
  EditDoor& edits() { return m_edits; }
  /// The selection of the language table has changed: the editor shows the translation of the new language.
  void languageSelectionDidChange();
  bool canSelectPrevString() const { return m_stringController.canSelectPrevious(); }
  bool canSelectNextString() const { return m_stringController.canSelectNext(); }
  bool canSelectPrevLanguage() const { return m_languageController.canSelectPrevious(); }
  bool canSelectNextLanguage() const { return m_languageController.canSelectNext(); }
  void selectPrevString();
  void selectNextString();
  /// A row of the string table.
  void selectString(std::size_t row);
  void selectPrevLanguage();
  void selectNextLanguage();
  bool canClose() const { return m_opened; }
  bool canSave() const { return m_changed && m_opened; }
  /// The tool-bar item with tag 2 saves; every other one is always enabled.
  bool validateToolbarItem(int tag) const;

  // ---- Undo and redo: ProjectWindowControllerHistory.cpp ----

  /// Takes the newest step back, whatever row, language or save lies between, and shows what it was about.
  void undo();
  void redo();
  bool canUndo() const { return undoStep() != nullptr; }
  bool canRedo() const { return redoStep() != nullptr; }
  /// The step that would be taken back or made again; null when there is none, or while a long job runs.
  const HistoryStep* undoStep() const;
  const HistoryStep* redoStep() const;

  // ---- Edits that no save wrote: ProjectWindowControllerRecovery.cpp ----

  /// Beside changed(): also after an import, a replaced text, or a save that could not write everything. Only of a
  /// project that was opened with a journal.
  bool hasUnsavedEdits() const { return m_unsaved.any(); }
  bool canSaveAll() const { return m_opened && (m_changed || hasUnsavedEdits()); }
  /// The strings that these edits are about.
  std::set<const LocalizeString*> unsavedStrings() const;
  /// Returns when all edits are on the disk, or cannot be brought there.
  void flushEdits() { m_unsaved.flush(); }
  /// Why edits cannot be kept on the disk; nothing when they can.
  std::optional<Error> journalProblem() const { return m_unsaved.problem(); }
  /// For a project that was opened without a journal: takes what former sessions left, and keeps others from it.
  void takeKeptEdits();
  /// What they left and how it fits, the newest session first.
  std::vector<RecoverableEdit> recoverableEdits() const;
  /// Applies those that can be applied, as one step. With a journal they leave what former sessions left at once,
  /// otherwise when they are saved.
  void recover(const std::vector<RecoverableEdit>& chosen);
  /// False when the disk does not let go of them.
  bool discardRecoverableEdits();

  // ---- Saving and closing: ProjectWindowControllerSaving.cpp ----

  bool saveLanguage(const std::shared_ptr<Language>& language);
  /// Every language is tried; afterwards the project counts as saved, also when one failed (rule 39). True when all
  /// were written.
  /// A save that was refused is no save: nothing was written, and the project stays as it is.
  bool saveProject();
  void saveProjectButton() { saveProject(); }
  /// What became of the last save.
  const SaveReport& lastSave() const { return m_lastSave; }
  /// Asks what to do about unsaved changes, and does it. False when everything is to stay as it is.
  bool settleChanges();
  /// The same, and nothing of the project is left. False when it stays open.
  bool closeProject();
  void closeProjectButton() { closeProject(); }

  // ---- Base language: ProjectWindowControllerBaseLanguage.cpp ----

  void languageFromBaseLanguage(std::shared_ptr<Language> language);
  /// Background.
  void bgLanguageFromBaseLanguage(const Language& language);
  void endLanguageFromBase();

  // ---- Export: ProjectWindowControllerExport.cpp ----

  /// Formats beside those of the core. Before anything is exported or imported.
  void addExchangeFormats(std::span<const ExchangeFormat> formats);
  const std::vector<ExchangeFormat>& exchangeFormatList() const { return m_exchange.formats; }
  /// The one with this name, or by the file's extension without a name; the program's own text where there is none.
  const ExchangeFormat& formatFor(std::string_view name, const FileUrl& file) const;
  void exportLanguageToFileAllStrings(std::shared_ptr<Language> language, const FileUrl& file, ExportScope scope);
  void exportLanguages(const ExportRequest& request);
  /// Background.
  void bgExportLanguage(const ExportRequest& request);
  /// Writes the text, when there is one, and closes the sheet.
  void saveExportTextFile(const Language& language, const FileUrl& file, const std::optional<WrittenExchange>& text);
  /// What the last export did.
  const ExportReport& exportReport() const { return m_exchange.exportReport; }

  // ---- Import: ProjectWindowControllerImport.cpp ----

  void importLanguageFromFile(std::shared_ptr<Language> language, const FileUrl& file);
  void importFile(const ImportRequest& request);
  /// Reads a file and says what an import would do, for a list to look at and to choose from. Changes nothing. Any
  /// thread, while nobody edits.
  Result<ImportPlan> planImport(const ImportRequest& request) const;
  /// Applies what is chosen as one step.
  void applyImport(const ImportPlan& plan);
  /// Background.
  void bgImportLanguage(const ImportRequest& request);
  void endImport();
  /// What the last import did, and what it was made of.
  const ImportReport& importReport() const { return m_exchange.importReport; }
  const ImportPlan& importPlan() const { return m_exchange.importPlan; }

  // ---- Tables, under rules that have them: ProjectWindowControllerTables.cpp ----

  /// The edits that take out what nothing uses, also where the filter holds it back, to be looked at before
  /// removeEntries().
  std::vector<Edit> unusedEntries(const LanguageArray& languages) const;
  void removeEntries(const std::vector<Edit>& edits);
  /// Makes the directories of a new language beside those of the tables named, or of all that are translated. Null when
  /// one cannot be made, which an alert has told, or none is to be made.
  std::shared_ptr<Language> addLanguageToTables(std::string_view code, const std::vector<std::string>& tableIds = {});

  // ---- Dialogs: ProjectWindowControllerDialogs.cpp ----

  void exportStrings();
  void importStrings();
  void createBaseLanguage();
  void addLanguage();
  /// Adds a language as if its code had been chosen in the dialog. Null when the ISO 639 table does not hold the code,
  /// no project was opened yet, or the directory cannot be made.
  std::shared_ptr<Language> addLanguage(std::string_view code);
  void languageWindowControllerDidSelectAllStrings(LanguageWindowController& chooser,
                                                   std::shared_ptr<Language> language, ExportScope scope) override;
  void languageWindowControllerDidCancel(LanguageWindowController& chooser) override;
  void didEndSelectLanguageWindowSheet();
  void selectLanguageWindowControllerDidSelect(SelectLanguageWindowController& dialog,
                                               std::shared_ptr<Language> language) override;

 private:
  void windowDidLoad();
  void loadIsoTable();
  std::string localized(std::string_view key) const { return m_host.bundle.localizedString(key); }
  void systemLog(const Message& message) { m_host.systemLog.write(message); }
  void onMainThread(const std::function<void()>& work) { m_host.threads.performOnMainThreadAndWait(work); }
  void runOkAlert(const std::string& message, std::optional<AlertRequest::Cause> cause = std::nullopt);

  bool startScan(const FileUrl& directory, const ProjectOptions& options);
  void beginLongJob(std::string_view titleKey);
  void beginCountingJob(std::string_view titleKey);
  void installResult(ScanRun& scan);
  void goOnAsBefore();
  void applyAgain(const std::vector<JournalEdit>& edits);

  void holdBackCompleteStrings();
  void giveBackStrings();
  void editApplied(const Edit& edit, EditKind kind);
  void countApplied(const Edit& edit, EditKind kind);
  void step(const std::function<void()>& select);
  void applyStep(EditKind kind, const std::vector<Edit>& edits);
  void showEdited(const std::vector<Edit>& edits);
  void keepJournal();
  void retireWhatIsThere();
  RecordsByPlace recordsByPlace() const;
  bool save(const LanguageArray& languages);
  bool placeTables(const LanguageArray& languages);
  bool placeTable(StringsTable& table);
  SaveResult writeFiles(const std::vector<FileText>& plan);
  void addWhatWasRead(std::vector<FileText>& plan) const;
  void rememberSave(const std::vector<FileText>& plan, const SaveResult& result);
  void retireWritten(const std::vector<FileText>& plan, const SaveResult& result);
  void tellOfSave(const FileText& text, const FileOutcome& outcome, const std::optional<std::string>& language);
  std::string newLocalizableText(const FileUrl& file, const std::optional<std::string>& language) const;
  std::string newTableFileText(const FileUrl& file, const std::string& language) const;
  AlertAnswer askToSave();

  const ExchangeFormat& ownFormat() const;
  std::optional<ExchangeDocument> documentOf(const UnitMaker& maker);
  Outcome writeExchange(const FileUrl& target, const WrittenExchange& written);
  void showChooser(std::shared_ptr<LanguageWindowController>& chooser, std::string_view name);
  void chooseExportFile(std::shared_ptr<Language> language, ExportScope scope);
  void chooseImportFile(std::shared_ptr<Language> language);
  std::shared_ptr<Language> addChosenLanguage(const Language& chosen, const std::vector<std::string>& tableIds = {});
  FileUrl newLanguageParent();
  bool createLanguageDirectory(const Language& language);
  bool applyImport(const ImportPlan& plan, ImportReport& report);
  void endCanceledImport(const ImportRequest& request);
  void tellOfImport();
};

}  // namespace glossmill
