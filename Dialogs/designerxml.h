// The dialog designer's sketch as XML text. Reading doesn't mirror writing:
// every known element becomes a top-level item wherever it stood, so a
// nested tree reads back flat, and spacers are not read at all.
#pragma once

#include <QList>
#include <QString>

class DialogDesigner;
class DialogItem;
class QTreeWidget;

namespace designer {

// At most this many items are read from one text; a sketch is a dialog, not
// a data set, and the preview builds one widget per item.
constexpr int kMaxReadItems = 2000;

// The tree as one XML document without line breaks.
QString writeXml(const QTreeWidget* tree);

// The items of text in document order, each to be made top-level; the
// caller owns them. Bad XML ends the reading silently with what was read.
QList<DialogItem*> readXml(const QString& text, DialogDesigner* owner);

} // namespace designer
