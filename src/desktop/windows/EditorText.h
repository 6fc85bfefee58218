#pragma once

#include <QString>

namespace glossmill {

// A text document takes several characters for the end of a paragraph and would turn them all into line feeds. These
// two put other characters in their place while the text is in an editor, so that it comes out as it went in.

QString toEditorText(QString text);
/// Takes the document's raw text. A line separator, which Shift+Return types, counts as a line feed.
QString fromEditorText(QString rawText);

}  // namespace glossmill
