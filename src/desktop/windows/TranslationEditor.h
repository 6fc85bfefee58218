#pragma once

#include <QPlainTextEdit>
#include <memory>

#include "model/LanguageCode.h"
#include "platform/Controls.h"

namespace glossmill {

class LocalizeString;
class ProjectWindowController;

/// The editor of the selected string's translation in the selected language. What is typed is stored at once, exactly
/// as it stands, so there is never anything left to commit. Disabled while nothing is selected.
class TranslationEditor : public QPlainTextEdit, public TranslationTextView {
  Q_OBJECT

 public:
  explicit TranslationEditor(QWidget* parent = nullptr);

  /// `project` outlives the editor's use of it.
  void setProject(ProjectWindowController& project);
  void translationChanged() override;

 Q_SIGNALS:
  /// The user has changed the stored translation.
  void translationEdited();

 protected:
  QMimeData* createMimeDataFromSelection() const override;

 private:
  void store();
  void load();
  void setDirection(Qt::LayoutDirection direction);

  ProjectWindowController* m_project = nullptr;
  std::shared_ptr<LocalizeString> m_shownString;
  LanguageCode m_shownLanguage;
  bool m_loading = false;
};

}  // namespace glossmill
