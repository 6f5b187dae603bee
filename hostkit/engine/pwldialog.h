// The host's point table of a piecewise linear curve, behind its script
// function "PWLDialog". A device editor passes two string arrays: the curve
// as a flat list x0, y0, x1, y1, ... and the options of the table:
//
//   element 0  window title            (default "Piecewise Linear Curve")
//   element 1  heading of the x column (default "X")
//   element 2  heading of the y column (default "Y")
//   element 3  a line of text above the table (default none)
//   element 4  the most points the curve may have (default and limit 100000)
//   element 5  the curve needs more segments than this (default 2)
//
// Ok gives the points back as a flat string array, every cell's text as it
// was typed (engineering suffixes and expressions in braces stay text).
// Cancel, or a call without a GUI application, gives no result.
#pragma once

#include "engine.h"

#include <QDialog>
#include <QStringList>

#include <memory>

class QTableWidget;

namespace vtkit {

struct PwlTableOptions {
    QString title;
    QString xHeading;
    QString yHeading;
    QString prompt;
    int maxPoints = 100000;
    int minSegments = 2; // a curve needs more segments than this
};

// Reads the options array; absent or unreadable elements keep the defaults,
// numbers are clamped to what the table can hold.
VT_ENGINE_API PwlTableOptions pwlTableOptions(const QStringList& options);

// Why the points can't be taken as a curve, "" when they can: each cell a
// number or an expression in braces, x ascending where both are numbers,
// more than minSegments segments.
VT_ENGINE_API QString pwlTableProblem(const QStringList& flat, int minSegments);

class VT_ENGINE_API PwlTableDialog : public QDialog {
    Q_OBJECT

public:
    PwlTableDialog(const QStringList& flat, const PwlTableOptions& options, QWidget* parent = nullptr);
    ~PwlTableDialog() override;

    // The filled rows as x0, y0, x1, y1, ...; rows left empty are skipped.
    QStringList points() const;

public slots:
    void accept() override;

private:
    void addPoint();
    void removePoint();
    void updatePlot();

    struct Private;
    std::unique_ptr<Private> d;
};

// The host function: args[0] the curve, args[1] the options.
VT_ENGINE_API bool pwlDialog(const ArgRecord* args, int nargs, ScriptValue& result, int& error);

} // namespace vtkit
