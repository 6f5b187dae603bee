// EditJumperDialog: editor of a schematic jumper with one position (open or
// closed) or two (open, position 1, position 2). Each shape keeps its own
// selection while the user switches between them.
#include "dialogcommon.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_editjumperdialog.h"

#include <QDialog>
#include <QShowEvent>

#include <memory>
#include <new>
#include <vector>

namespace {

enum Shape { OnePosition = 0, TwoPositions = 1 };

} // namespace

class EditJumperDialog : public QDialog {
    Q_OBJECT

public:
    explicit EditJumperDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~EditJumperDialog() override;

    void loadArguments(UserFunctionInterface* call);

public slots:
    virtual void numberOfPositionsGroup_clicked(int id);
    virtual void jumperPositionGroup_clicked(int id);
    virtual void helpButton_clicked();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool isShape(int id) const { return id >= 0 && id < static_cast<int>(m_positions.size()); }

    std::unique_ptr<Ui::EditJumperDialog> m_ui;
    std::vector<int> m_positions; // the remembered position of each shape
    int m_helpContext = -1;
};

EditJumperDialog::EditJumperDialog(QWidget* parent, const char* name)
    : QDialog(parent), m_ui(new Ui::EditJumperDialog)
{
    setObjectName(QString::fromLatin1(name ? name : "EditJumperDialog"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_positions.assign(static_cast<size_t>(std::max(0, m_ui->numberOfPositionsGroup->count())), 0);

    connect(m_ui->numberOfPositionsGroup, &RadioGroup::clicked, this,
            &EditJumperDialog::numberOfPositionsGroup_clicked);
    connect(m_ui->jumperPositionGroup, &RadioGroup::clicked, this,
            &EditJumperDialog::jumperPositionGroup_clicked);
    connect(m_ui->helpButton, &QPushButton::clicked, this, &EditJumperDialog::helpButton_clicked);
}

EditJumperDialog::~EditJumperDialog() = default;

void EditJumperDialog::loadArguments(UserFunctionInterface* call)
{
    const QStringList texts = dialogcommon::stringArg(call, 1);
    if (!texts.isEmpty() && !texts.at(0).isEmpty())
        setWindowTitle(texts.at(0));
    m_helpContext = texts.size() > 1 ? dialogcommon::leadingInt(texts.at(1)) : -1;
    if (m_helpContext < 0)
        m_ui->helpButton->hide();
}

void EditJumperDialog::numberOfPositionsGroup_clicked(int id)
{
    if (!isShape(id))
        return;
    m_ui->jumperPositionGroup->setButton(m_positions[static_cast<size_t>(id)]);
    if (id == OnePosition) {
        m_ui->rbPosition2->hide();
        m_ui->rbPosition1->setText(tr("Closed"));
    } else {
        m_ui->rbPosition2->show();
        m_ui->rbPosition1->setText(tr("Position 1"));
    }
}

void EditJumperDialog::jumperPositionGroup_clicked(int id)
{
    const int shape = m_ui->numberOfPositionsGroup->selectedId();
    if (isShape(shape))
        m_positions[static_cast<size_t>(shape)] = id;
}

void EditJumperDialog::helpButton_clicked()
{
    dialogcommon::runHelp(m_helpContext);
}

void EditJumperDialog::showEvent(QShowEvent* event)
{
    // The binding has set both groups by now.
    const int shape = m_ui->numberOfPositionsGroup->selectedId();
    if (isShape(shape))
        m_positions[static_cast<size_t>(shape)] = m_ui->jumperPositionGroup->selectedId();
    numberOfPositionsGroup_clicked(shape);
    QDialog::showEvent(event);
}

namespace {

QDialog* createEditJumperDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) EditJumperDialog(nullptr, "EditJumperDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEditJumperDialog("EditJumperDialog", argLimits(0, 32),
                                                           &createEditJumperDialog);

#include "editjumperdialog.moc"
