#include "desktop/windows/OnlyButton.h"

#include <QStringList>
#include <utility>

#include "app/ViewConditions.h"
#include "desktop/host/QtText.h"
#include "text/Format.h"

namespace glossmill {

OnlyButton::OnlyButton(QPushButton& button, ProjectWindowController& project, ViewFilter& view, const Bundle& bundle)
    : m_button(button), m_project(project), m_view(view), m_bundle(bundle), m_changed(project) {
  const auto localized = [&bundle](std::string_view key) { return bundle.localizedString(key); };
  add(ViewPart::Untranslated, localized("Not &translated"), isUntranslated(project));
  add(ViewPart::Unused, localized("&Unused"), isUnused());
  m_unused = m_menu.actions().back();
  add(ViewPart::Changed, localized("&Changed since the last save"),
      [this](const LocalizeString& record) { return m_changed.holds(record); });
  m_button.setMenu(&m_menu);
  m_project.observers().add([this](ProjectMoment) { offerWhatThereIs(); });
  offerWhatThereIs();
  showOnButton();
}

void OnlyButton::add(ViewPart part, std::string_view title, ViewFilter::Condition condition) {
  QAction* action = m_menu.addAction(toQt(title));
  action->setCheckable(true);
  QObject::connect(action, &QAction::toggled, &m_menu, [this, part, condition = std::move(condition)](bool on) {
    m_view.set(part, on ? condition : nullptr);
    showOnButton();
  });
}

/// Only some rules know what is unused.
void OnlyButton::offerWhatThereIs() {
  const bool knowsUnused = m_project.projectOptions().rules == RuleSet::Xcode;
  if (!knowsUnused) m_unused->setChecked(false);
  m_unused->setVisible(knowsUnused);
}

void OnlyButton::showOnButton() {
  QStringList chosen;
  for (const QAction* action : m_menu.actions()) {
    if (action->isChecked()) chosen.append(action->text().remove(QLatin1Char('&')));
  }
  const QString list = chosen.join(QStringLiteral(", "));
  const std::string text = chosen.isEmpty() ? m_bundle.localizedString("Filter")
                                            : formatText(m_bundle.localizedString("Only: %@"), {fromQt(list)});
  m_button.setText(toQt(text));
}

}  // namespace glossmill
