// The one-line text form of a piecewise linear curve that device editors
// put into a model: "NSEG=n X0=x Y0=y ... Xn=x Yn=y". The x and y values are
// the curve's own texts, copied without conversion, so "23.5u" stays
// "23.5u" and an expression stays an expression.
#pragma once

#include <QString>
#include <QStringList>

namespace pwltext {

// The text of a flat list x0, y0, x1, y1, ...: n = (count >> 1) - 1
// segments, so an odd last entry is ignored. Fewer than two entries give
// "NSEG=-1", which is what the count makes of it.
QString write(const QStringList& flat);

// The flat list x0, y0, ... of a text made by write(). Keys are read
// without regard to case and must come in the written order; any other
// text, or a segment count that doesn't match the points, is refused
// (false, *flat untouched). A value holds no blank, since blanks separate
// the fields, so what this gives always writes and reads back the same.
bool parse(const QString& text, QStringList* flat);

} // namespace pwltext
