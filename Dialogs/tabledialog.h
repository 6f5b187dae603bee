// TableDialog edits a grid of free text. In its other mode (TableEditor)
// each cell is a choice from its column's list, and the column widths are
// remembered between calls.
#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

#include <memory>

class QComboBox;
struct UserFunctionInterface;

namespace Ui {
class TableDialog;
}

class TableDialog : public QDialog {
    Q_OBJECT

public:
    TableDialog(QWidget* parent, const char* name, bool plainCells);
    ~TableDialog() override;

    // Fill the table from the script's arguments.
    void loadPlainTable(UserFunctionInterface* call);
    void loadEditorTable(UserFunctionInterface* call);

    // One element per row: each cell followed by ";".
    QStringList plainResult() const;
    // One element per column: the choices of its cells, joined by "|".
    QStringList editorResult() const;
    void saveColumnWidths() const;

public slots:
    void addRowButton_clicked();
    void addColumnButton_clicked();
    void removeRowButton_clicked();
    void removeColumnButton_clicked();

private:
    // A combo box of the column's choices, the first one current.
    QComboBox* makeChoiceBox(int column);
    void loadColumnWidths();

    std::unique_ptr<Ui::TableDialog> m_ui;
    bool m_plainCells;
    QList<QStringList> m_columnChoices; // split choices, one list per column
    QString m_widthsOption;
    QList<int> m_loadedWidths;
};
