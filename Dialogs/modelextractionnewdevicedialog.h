// ModelExtractionNewDeviceDialog: picks one SPICE model out of a list of
// names, with a search box that narrows the list as the user types. Not a
// script function: the model extraction dialog runs it on its stack.
//
//   ModelExtractionNewDeviceDialog picker(parent);
//   picker.loadDialog(names, count, current);
//   if (picker.exec() == QDialog::Accepted)
//       use(picker.selectedDevice());
//
// The names are the caller's and must outlive the dialog.
#pragma once

#include <QDialog>
#include <QString>

#include <memory>
#include <vector>

namespace Ui {
class ModelExtractionNewDeviceDialog;
}

class ModelExtractionNewDeviceDialog : public QDialog {
    Q_OBJECT

public:
    explicit ModelExtractionNewDeviceDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~ModelExtractionNewDeviceDialog() override;

public slots:
    void searchEdit_textChanged2();
    // Lists names, marking the one equal to current as selected.
    void loadDialog(const char* const* names, int count, const QString& current);
    void helpButton_Clicked() {}
    QString selectedDevice() const { return m_chosenDevice; }
    void formAccepted();

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::ModelExtractionNewDeviceDialog> m_ui;
    std::vector<const char*> m_modelNames;
    QString m_chosenDevice;
};
