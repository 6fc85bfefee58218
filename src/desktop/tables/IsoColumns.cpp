#include "desktop/tables/IsoColumns.h"

#include "desktop/host/QtText.h"
#include "desktop/tables/CellText.h"

namespace glossmill {

namespace {

Color colorOf(const Language& language) {
  return BOOLToColorTransformer::transformedValue(language.inUse());
}

}  // namespace

std::vector<Column<Language>> isoColumns(const Bundle& bundle) {
  const auto name = [](const Language& language) { return cellText(language.description().value_or("")); };
  const auto code = [](const Language& language) { return cellText(language.iso639()); };
  const auto used = [mark = toQt(bundle.localizedString("in the project"))](const Language& language) {
    return language.inUse() ? mark : QString();
  };
  return {
      Column<Language>("Language", 260, name).colored(colorOf),
      Column<Language>("Code", 70, code).colored(colorOf),
      Column<Language>("", 100, used).colored(colorOf).takingTheRest(),
  };
}

}  // namespace glossmill
