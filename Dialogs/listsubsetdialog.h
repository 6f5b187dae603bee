// ListSubsetDialog: divides a set of strings into those selected and those
// not, by moving them between two lists.
#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class ListSubsetDialog;
}

class ListSubsetDialog : public QDialog {
    Q_OBJECT

public:
    explicit ListSubsetDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~ListSubsetDialog() override;

    // Items are appended and each list sorted.
    void addAvailableItems(const QStringList& items);
    void addSelectedItems(const QStringList& items);
    void setAvailableTitle(const QString& title);
    void setSelectedTitle(const QString& title);

    // All items of each list, in the order selectedItems() gives after
    // selecting all.
    QStringList selectedListItems() const;
    QStringList availableListItems() const;

public slots:
    void addSelected();
    void addAll();
    void removeSelected();
    void removeAll();

private:
    std::unique_ptr<Ui::ListSubsetDialog> m_ui;
};
