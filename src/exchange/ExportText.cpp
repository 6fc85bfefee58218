#include "exchange/ExportText.h"

namespace glossmill {

void appendExportBlock(std::string& text, const ExchangeUnit& unit) {
  text += "--- " + std::to_string(unit.number) + " ---\n/* ";
  text += unit.comment;
  text += " */\n";
  text += unit.key;
  text += '\n';
  if (const std::string* translation = unit.textIn(0)) text += *translation;
  text += "\n\n";
}

}  // namespace glossmill
