#include "xcode/CatalogEdits.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "text/Format.h"
#include "xcode/CatalogNames.h"
#include "xcode/TreeEditor.h"

namespace glossmill {

namespace {

constexpr std::size_t kKeptNames = 2;  // "strings" and the key, which stays when its last text goes
constexpr std::string_view kEditedState = "translated";

std::string_view lineEndOf(std::string_view text) {
  const std::size_t end = text.find_first_of("\r\n");
  if (end == std::string_view::npos) return "\n";
  return text.substr(end, text.substr(end).starts_with("\r\n") ? 2 : 1);
}

TreePath keyPath(const std::string& key) {
  return {std::string(kStringsName), key};
}

TreePath languagePath(const std::string& key, const std::string& language) {
  TreePath path = keyPath(key);
  path.emplace_back(kLocalizationsName);
  path.push_back(language);
  return path;
}

TreePath below(TreePath path, std::string_view name) {
  path.emplace_back(name);
  return path;
}

void append(TreePath& path, const VariationStep& step) {
  if (step.kind == kPartKind) {
    path.emplace_back(kSubstitutionsName);
  } else {
    path.emplace_back(kVariationsName);
    path.push_back(step.kind);
  }
  path.push_back(step.name);
}

class CatalogEditor {
 public:
  explicit CatalogEditor(const CatalogDocument& document)
      : m_document(document),
        m_editor(document.tree(), lineEndOf(document.file().text)),
        m_source(document.sourceLanguage()) {}

  Outcome apply(const CatalogEdit& edit);
  Outcome check(const CatalogEdit& edit) const;
  std::string text() const { return m_editor.text(); }

 private:
  Outcome write(const CatalogEdit& edit, const TreePath& unit);
  void addKey(const CatalogEdit& edit);
  void copyParts(const CatalogEdit& edit);
  void removeStaleKey(const std::string& key);
  static TreePath unitPath(const CatalogEdit& edit);

  const CatalogDocument& m_document;
  TreeEditor m_editor;
  std::string m_source;
};

TreePath CatalogEditor::unitPath(const CatalogEdit& edit) {
  TreePath path = languagePath(edit.key, edit.language);
  for (const VariationStep& step : edit.variation) append(path, step);
  path.emplace_back(kUnitName);
  return path;
}

Outcome CatalogEditor::apply(const CatalogEdit& edit) {
  const TreePath unit = unitPath(edit);
  if (edit.value) return write(edit, unit);
  m_editor.remove(unit, kKeptNames);
  removeStaleKey(edit.key);
  return Done{};
}

Outcome CatalogEditor::write(const CatalogEdit& edit, const TreePath& unit) {
  const TreePath valuePath = below(unit, kValueName);
  const bool isNew = !m_editor.holds(unit);
  const bool isSame = !isNew && m_editor.textAt(valuePath) == edit.value;
  if (isNew && !m_editor.holds(keyPath(edit.key))) addKey(edit);
  bool isDone = isSame || m_editor.setText(valuePath, *edit.value);
  const std::optional<std::string> state = edit.state || isSame ? edit.state : std::optional<std::string>(kEditedState);
  const TreePath statePath = below(unit, kStateName);
  if (isDone && state && m_editor.textAt(statePath) != state) isDone = m_editor.setText(statePath, *state);
  if (!isDone) {
    return Error{formatText("“%@” has no room for this text in the language %@.", {edit.key, edit.language})};
  }
  if (isNew) copyParts(edit);
  return Done{};
}

void CatalogEditor::addKey(const CatalogEdit& edit) {
  if (!edit.comment.empty()) m_editor.setText(below(keyPath(edit.key), kCommentName), edit.comment);
}

/// A part says beside its texts which argument it is, and of which form: as it does in the source language.
void CatalogEditor::copyParts(const CatalogEdit& edit) {
  TreePath path = languagePath(edit.key, edit.language);
  TreePath source = languagePath(edit.key, m_source);
  for (const VariationStep& step : edit.variation) {
    append(path, step);
    append(source, step);
    if (step.kind != kPartKind || m_editor.namesIn(path).size() != 1) continue;
    ValueTree::Number part = 0;
    for (const std::string& name : source) part = m_document.tree().member(part, name);
    m_document.tree().eachMember(part, [&](ValueTree::Number member) {
      if (m_document.tree().isObject(member)) return;
      m_editor.setSpelled(below(path, m_document.tree().nameOf(member)),
                          std::string(m_document.tree().spelled(member)));
    });
  }
}

void CatalogEditor::removeStaleKey(const std::string& key) {
  const TreePath path = keyPath(key);
  if (m_editor.textAt(below(path, kExtractionStateName)) != "stale") return;
  if (!m_editor.holds(below(path, kLocalizationsName))) m_editor.remove(path, 1);
}

/// One text for all counts and devices, and variations of it, cannot stand beside one another.
Outcome CatalogEditor::check(const CatalogEdit& edit) const {
  if (!edit.value) return Done{};
  TreePath path = languagePath(edit.key, edit.language);
  for (std::size_t step = 0; step <= edit.variation.size(); ++step) {
    if (m_editor.holds(below(path, kUnitName)) && m_editor.holds(below(path, kVariationsName))) {
      return Error{
          formatText("“%@” cannot have one text and variations of it in the language %@: one of them has to "
                     "be cleared.",
                     {edit.key, edit.language})};
    }
    if (step < edit.variation.size()) append(path, edit.variation[step]);
  }
  return Done{};
}

}  // namespace

Result<std::string> editedCatalog(const CatalogDocument& document, const std::vector<CatalogEdit>& edits) {
  if (document.error()) return Error{document.error()->sentence};
  CatalogEditor editor(document);
  for (const CatalogEdit& edit : edits) {
    const Outcome outcome = editor.apply(edit);
    if (!outcome) return outcome.error();
  }
  for (const CatalogEdit& edit : edits) {
    const Outcome outcome = editor.check(edit);
    if (!outcome) return outcome.error();
  }
  return bytesOfFile({editor.text(), document.file().encoding, document.file().hasMark});
}

}  // namespace glossmill
