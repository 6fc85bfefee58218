#include "cli/LanguageTable.h"

#include "cli/DisplayText.h"
#include "cli/TextTable.h"
#include "host/Paths.h"
#include "model/PercentDone.h"

namespace glossmill {

namespace {

using Align = TextTable::Align;
using Cell = TextTable::Cell;

struct Counts {
  std::size_t translated = 0;
  std::size_t missing = 0;

  Paint paint() const { return missing == 0 ? Paint::Good : Paint::Gap; }
  Cell translatedCell() const { return {std::to_string(translated)}; }
  Cell missingCell() const { return {std::to_string(missing), paint()}; }
  Cell percentCell() const { return {std::to_string(percentDone(translated + missing, missing)) + "%", paint()}; }
};

std::string stringsFileText(const ProjectSession& session, const Language& language) {
  if (language.urlDepth() != Language::kStringsFile) return "no file";
  return std::string(shownPath(session.project().projectDirectory(), language.localizedStringUrl()));
}

Cell heading(std::string text) {
  return {std::move(text), Paint::Heading};
}

}  // namespace

std::string languageTable(const ProjectSession& session, const LanguageArray& languages) {
  TextTable table({Align::Left, Align::Left, Align::Left, Align::Right, Align::Right, Align::Right});
  table.addRow({heading("Code"), heading("Language"), heading("Strings file"), heading("Translated"),
                heading("Missing"), heading("Percent")});
  Counts total;
  for (const std::shared_ptr<Language>& language : languages) {
    Counts counts;
    counts.missing = session.project().missingTranslations(*language);
    counts.translated = session.project().stringList().size() - counts.missing;
    total.translated += counts.translated;
    total.missing += counts.missing;
    table.addRow({{language->iso639()},
                  {language->description().value_or("-")},
                  {stringsFileText(session, *language)},
                  counts.translatedCell(),
                  counts.missingCell(),
                  counts.percentCell()});
  }
  table.addRow({heading("Total"),
                {counted(languages.size(), "language")},
                {},
                total.translatedCell(),
                total.missingCell(),
                total.percentCell()});
  return table.text(session.console());
}

}  // namespace glossmill
