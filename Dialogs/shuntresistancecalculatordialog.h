// ShuntResistanceCalculatorDialog: turns an inductance and a corner
// frequency into the shunt resistance that limits the inductor's high
// frequency behaviour there. Opened by the multi-level device editor.
#pragma once

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class ShuntResistanceCalculatorDialog;
}

class ShuntResistanceCalculatorDialog : public QDialog {
    Q_OBJECT

public:
    // The parent is not passed on: the dialog is a window of its own, as
    // the editor that opens it runs modally already.
    ShuntResistanceCalculatorDialog(QWidget* parent, const char* name, const QString& inductance,
                                    bool inductanceEditable);
    ~ShuntResistanceCalculatorDialog() override;

    // The shunt resistance as shown, valid after exec() returned Accepted.
    QString resultText() const { return m_result; }

public slots:
    void runHelp();
    void loadDialog(const QString& inductance, bool inductanceEditable);
    void calculate();
    void closeDialog();

private:
    std::unique_ptr<Ui::ShuntResistanceCalculatorDialog> m_ui;
    QString m_result;
    int m_helpContext = -1;
};
