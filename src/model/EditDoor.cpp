#include "model/EditDoor.h"

#include "model/LocalizeString.h"

namespace glossmill {

void EditDoor::beginEdits() {
  ++m_step;
  m_isOpen = true;
}

void EditDoor::applyEdit(EditKind kind, const Edit& edit) {
  if (edit.changesNothing()) return;
  if (!m_isOpen) ++m_step;
  LanguagesDict& translations = edit.record->m_languagesDict;
  if (edit.after) {
    translations.set(edit.language, *edit.after);
  } else {
    translations.remove(edit.language);
  }
  for (const Observer& observer : m_observers) observer(edit, {kind, m_step});
}

}  // namespace glossmill
