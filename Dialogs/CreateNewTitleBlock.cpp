// CreateNewTitleBlockDialog: the content of a schematic title block. An
// existing block comes in as tagged lines and goes back the same way, so
// one dialog both creates and edits. A logo arrives as base64 PNG data but
// leaves as a path, or as "FromSchematic" when the script should keep the
// image it already has: the dialog never writes image data.
#include "dialogcommon.h"
#include "registration.h"

#include "ui_CreateNewTitleBlock.h"

#include <QDate>
#include <QDialog>
#include <QFileDialog>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

#include <memory>

namespace {

const char* const kDefaultCompany = "TitleBlockDefaultCompany";
const char* const kDefaultAuthor = "TitleBlockDefaultAuthor";
const char* const kDefaultLogoPath = "TitleBlockDefaultLogoPath";
const char* const kNonNativeFileDialog = "UseNonNativeFileDialog";

const QLatin1String kCompanyTag("CompanyName:");
const QLatin1String kTitleTag("Title:");
const QLatin1String kAuthorTag("Author:");
const QLatin1String kNotesTag("Notes:");
const QLatin1String kLayoutTag("LayoutStyle:");
const QLatin1String kLogoTag("Logo:");
const QLatin1String kVersionTag("Version:");
const QLatin1String kDateTag("Date:");
const QLatin1String kAuto("<<auto>>");
const QLatin1String kHorizontal("Horizontal");
const QLatin1String kVertical("Vertical");
const QLatin1String kFromSchematic("FromSchematic");

// Dates cross in the system locale's short form, both ways.
QString dateText(const QDate& date)
{
    return QLocale::system().toString(date, QLocale::ShortFormat);
}

QDate dateFrom(const QString& text)
{
    return QLocale::system().toDate(text, QLocale::ShortFormat);
}

// Shows the logo in the middle of its area. The image is scaled once, as it
// is loaded, so painting stays cheap.
class ImagePreviewer : public QWidget {
public:
    explicit ImagePreviewer(QWidget* parent)
        : QWidget(parent)
    {
        setMinimumSize(150, 100);
        auto* layout = new QVBoxLayout(parent);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(this);
        resize(parent->size().expandedTo(minimumSize()));
    }

    // A null image for data that is no picture.
    void setImage(const QImage& image)
    {
        m_image = image.isNull() ? QImage()
                                 : image.scaled(size(), Qt::KeepAspectRatio,
                                                Qt::SmoothTransformation);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (m_image.isNull())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QPointF((width() - m_image.width()) * 0.5,
                                  (height() - m_image.height()) * 0.5),
                          m_image);
    }

private:
    QImage m_image;
};

class CreateNewTitleBlockDialog : public QDialog {
    Q_OBJECT

public:
    CreateNewTitleBlockDialog();
    ~CreateNewTitleBlockDialog() override;

    void loadBlock(const QStringList& lines);
    void loadDefaults();
    QStringList blockLines() const;
    void writeDefaults() const;

public slots:
    void autoDateOptionToggled();
    void autoVersionOptionToggled();
    void chooseImageButtonPressed();
    void horizontalOptionToggled();
    void manualDateOptionToggled();
    void manualVersionOptionToggled();
    void verticalOptionToggled();

private:
    void loadLine(const QString& line);
    void setLogoFile(const QString& path);

    std::unique_ptr<Ui::CreateNewTitleBlock> m_ui;
    ImagePreviewer* m_previewer = nullptr;
};

CreateNewTitleBlockDialog::CreateNewTitleBlockDialog()
    : QDialog(nullptr)
    , m_ui(new Ui::CreateNewTitleBlock)
{
    setObjectName(QStringLiteral("CreateNewTitleBlock"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    Ui::CreateNewTitleBlock& ui = *m_ui;
    using D = CreateNewTitleBlockDialog;
    connect(ui.radioButton_AutoDate, &QRadioButton::clicked, this, &D::autoDateOptionToggled);
    connect(ui.radioButton_AutoVersion, &QRadioButton::clicked, this,
            &D::autoVersionOptionToggled);
    connect(ui.button_ImageSelection, &QPushButton::clicked, this, &D::chooseImageButtonPressed);
    connect(ui.horizontalStyleButton, &QRadioButton::clicked, this, &D::horizontalOptionToggled);
    connect(ui.radioButton_ManualDate, &QRadioButton::clicked, this, &D::manualDateOptionToggled);
    connect(ui.radioButton_ManualVersion, &QRadioButton::clicked, this,
            &D::manualVersionOptionToggled);
    connect(ui.verticalStyleButton, &QRadioButton::clicked, this, &D::verticalOptionToggled);
}

CreateNewTitleBlockDialog::~CreateNewTitleBlockDialog() = default;

void CreateNewTitleBlockDialog::loadBlock(const QStringList& lines)
{
    m_previewer = new ImagePreviewer(m_ui->widget_ImageSelection);
    m_ui->dateEdit_Date->setDate(QDate::currentDate());
    for (const QString& line : lines)
        loadLine(line);
}

void CreateNewTitleBlockDialog::loadLine(const QString& line)
{
    Ui::CreateNewTitleBlock& ui = *m_ui;
    auto tagged = [&line](const QLatin1String& tag) {
        return line.startsWith(tag, Qt::CaseInsensitive);
    };
    auto valueAfter = [&line](const QLatin1String& tag) { return line.mid(tag.size()); };
    const bool automatic = line.endsWith(kAuto, Qt::CaseInsensitive);

    if (tagged(kCompanyTag)) {
        ui.textedit_CompanyName->setText(valueAfter(kCompanyTag));
    } else if (tagged(kTitleTag)) {
        ui.textedit_Title->setText(valueAfter(kTitleTag));
    } else if (tagged(kAuthorTag)) {
        ui.textedit_Author->setText(valueAfter(kAuthorTag));
    } else if (tagged(kNotesTag)) {
        ui.textedit_Notes->setText(valueAfter(kNotesTag));
    } else if (tagged(kLayoutTag)) {
        const QString value = valueAfter(kLayoutTag);
        if (value.startsWith(kHorizontal, Qt::CaseInsensitive)) {
            ui.horizontalStyleButton->setChecked(true);
            ui.verticalStyleButton->setChecked(false);
            horizontalOptionToggled();
        } else if (value.startsWith(kVertical, Qt::CaseInsensitive)) {
            ui.verticalStyleButton->setChecked(true);
            ui.horizontalStyleButton->setChecked(false);
            verticalOptionToggled();
        }
    } else if (tagged(kLogoTag)) {
        // The line crossed the call record as 8-bit: these are its bytes.
        const QByteArray data = QByteArray::fromBase64(valueAfter(kLogoTag).toLatin1());
        m_previewer->setImage(QImage::fromData(data, "PNG"));
        ui.editbox_ImageSelection->setText(kFromSchematic);
        ui.editbox_ImageSelection->setEnabled(false);
    } else if (tagged(kVersionTag)) {
        if (!automatic) {
            ui.editbox_Version->setText(valueAfter(kVersionTag));
            ui.editbox_Version->setEnabled(true);
            ui.radioButton_AutoVersion->setChecked(false);
            ui.radioButton_ManualVersion->setChecked(true);
        }
    } else if (tagged(kDateTag)) {
        if (!automatic) {
            // A date that doesn't parse leaves today's in the box.
            ui.dateEdit_Date->setDate(dateFrom(valueAfter(kDateTag)));
            ui.dateEdit_Date->setEnabled(true);
            ui.radioButton_AutoDate->setChecked(false);
            ui.radioButton_ManualDate->setChecked(true);
        }
    }
}

void CreateNewTitleBlockDialog::loadDefaults()
{
    Ui::CreateNewTitleBlock& ui = *m_ui;
    m_previewer = new ImagePreviewer(ui.widget_ImageSelection);
    ui.dateEdit_Date->setDate(QDate::currentDate());
    const QString company = toQs(sp_GetStringOption(kDefaultCompany));
    if (!company.isEmpty()) {
        ui.textedit_CompanyName->setText(company);
        ui.checkBox_DefaultCompany->setChecked(true);
    }
    const QString author = toQs(sp_GetStringOption(kDefaultAuthor));
    if (!author.isEmpty()) {
        ui.textedit_Author->setText(author);
        ui.checkBox_DefaultAuthor->setChecked(true);
    }
    const QString logo = toQs(sp_GetStringOption(kDefaultLogoPath));
    if (!logo.isEmpty()) {
        setLogoFile(logo);
        ui.checkBox_DefaultLogo->setChecked(true);
    }
}

void CreateNewTitleBlockDialog::setLogoFile(const QString& path)
{
    m_ui->editbox_ImageSelection->setText(path);
    m_ui->editbox_ImageSelection->setEnabled(true);
    m_previewer->setImage(QImage(path)); // a file that can't be read gives none
}

QStringList CreateNewTitleBlockDialog::blockLines() const
{
    const Ui::CreateNewTitleBlock& ui = *m_ui;
    const bool horizontal =
        ui.horizontalStyleButton->isChecked() && !ui.verticalStyleButton->isChecked();
    QStringList out;
    out << kCompanyTag + ui.textedit_CompanyName->text() << kTitleTag + ui.textedit_Title->text()
        << kAuthorTag + ui.textedit_Author->text() << kNotesTag + ui.textedit_Notes->text()
        << kLayoutTag + (horizontal ? kHorizontal : kVertical)
        << kLogoTag + ui.editbox_ImageSelection->text();
    out << (ui.radioButton_ManualVersion->isChecked() ? kVersionTag + ui.editbox_Version->text()
                                                      : kVersionTag + kAuto);
    out << (ui.radioButton_ManualDate->isChecked()
                ? kDateTag + dateText(ui.dateEdit_Date->date())
                : kDateTag + kAuto);
    return out;
}

void CreateNewTitleBlockDialog::writeDefaults() const
{
    const Ui::CreateNewTitleBlock& ui = *m_ui;
    if (ui.checkBox_DefaultAuthor->isChecked())
        sp_WriteOption(kDefaultAuthor, toYs(ui.textedit_Author->text()));
    if (ui.checkBox_DefaultCompany->isChecked())
        sp_WriteOption(kDefaultCompany, toYs(ui.textedit_CompanyName->text()));
    // Checkable, not checked: the logo path is remembered on every Ok,
    // "FromSchematic" included. Scripts have come to rely on it.
    if (ui.checkBox_DefaultLogo->isCheckable())
        sp_WriteOption(kDefaultLogoPath, toYs(ui.editbox_ImageSelection->text()));
}

void CreateNewTitleBlockDialog::autoDateOptionToggled()
{
    if (m_ui->radioButton_AutoDate->isChecked())
        m_ui->dateEdit_Date->setEnabled(false);
}

void CreateNewTitleBlockDialog::manualDateOptionToggled()
{
    if (m_ui->radioButton_ManualDate->isChecked())
        m_ui->dateEdit_Date->setEnabled(true);
}

void CreateNewTitleBlockDialog::autoVersionOptionToggled()
{
    if (m_ui->radioButton_AutoVersion->isChecked())
        m_ui->editbox_Version->setEnabled(false);
}

void CreateNewTitleBlockDialog::manualVersionOptionToggled()
{
    if (m_ui->radioButton_ManualVersion->isChecked())
        m_ui->editbox_Version->setEnabled(true);
}

void CreateNewTitleBlockDialog::horizontalOptionToggled()
{
    const Ui::CreateNewTitleBlock& ui = *m_ui;
    if (!ui.horizontalStyleButton->isChecked())
        return;
    for (QWidget* w : {static_cast<QWidget*>(ui.textedit_Notes),
                       static_cast<QWidget*>(ui.button_ImageSelection),
                       static_cast<QWidget*>(ui.editbox_ImageSelection), ui.widget_ImageSelection,
                       static_cast<QWidget*>(ui.checkBox_DefaultLogo)})
        w->setEnabled(true);
}

// The vertical layout has no room for notes or a logo: the "limited" of
// its label.
void CreateNewTitleBlockDialog::verticalOptionToggled()
{
    const Ui::CreateNewTitleBlock& ui = *m_ui;
    if (!ui.verticalStyleButton->isChecked())
        return;
    for (QWidget* w : {static_cast<QWidget*>(ui.textedit_Notes),
                       static_cast<QWidget*>(ui.button_ImageSelection),
                       static_cast<QWidget*>(ui.editbox_ImageSelection), ui.widget_ImageSelection,
                       static_cast<QWidget*>(ui.checkBox_DefaultLogo)})
        w->setEnabled(false);
}

void CreateNewTitleBlockDialog::chooseImageButtonPressed()
{
    QFileDialog::Options options;
    if (sp_GetBoolOption(kNonNativeFileDialog, nullptr))
        options |= QFileDialog::DontUseNativeDialog;
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open Image"), QString(), tr("Image Files (*.png *.jpg *.bmp)"), nullptr, options);
    if (path.isEmpty())
        return;
    setLogoFile(path);
}

// A script can't pass an empty array: one of empty strings is no block.
bool isNewBlock(const QStringList& lines)
{
    for (const QString& line : lines)
        if (!line.isEmpty())
            return false;
    return true;
}

long long runCreateNewTitleBlockDialog(UserFunctionInterface* call)
{
    const QStringList lines = dialogcommon::stringArg(call, 0);
    CreateNewTitleBlockDialog dialog;
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    if (isNewBlock(lines))
        dialog.loadDefaults();
    else
        dialog.loadBlock(lines);
    if (dialog.exec() != QDialog::Accepted) {
        dialogcommon::setStringResult(call, {QString()});
        return 0;
    }
    dialogcommon::setStringResult(call, dialog.blockLines());
    dialog.writeDefaults();
    return 0;
}

} // namespace

static const MakeOption optionDefaultCompany(__FILE__, __LINE__, kDefaultCompany, "", true);
static const MakeOption optionDefaultAuthor(__FILE__, __LINE__, kDefaultAuthor, "", true);
static const MakeOption optionDefaultLogoPath(__FILE__, __LINE__, kDefaultLogoPath, "", true);

static const FunctionRegistration registerCreateNewTitleBlockDialog(
    "CreateNewTitleBlockDialog", argLimits(0, 1), &runCreateNewTitleBlockDialog, {ArgStrings});

#include "CreateNewTitleBlock.moc"
