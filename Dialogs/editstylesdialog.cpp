// EditStylesDialog: edits a set of schematic styles, each a line of style
// text, and shows the selected one on a small drawn schematic. The style
// entries are the working copy and the result at once: every change goes
// into the text as it is made and every read parses it again.
#include "colornumber.h"
#include "dialogcommon.h"
#include "registration.h"
#include "stylerecord.h"

#include "ui_editstylesdialog.h"

#include <QColorDialog>
#include <QDialog>
#include <QFontDatabase>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>
#include <limits>
#include <memory>

namespace {

const QLatin1String kNoEdit("noedit");
const QLatin1String kNoAdd("noadd");
const QLatin1String kNoDuplicate("noduplicate");
const QLatin1String kFontOnly("FontOnly");
const QLatin1String kNewStyle("NewStyle");

// A spinner's value as a stored integer: truncated, and cut to the range
// of one, so a wild text can't overflow the conversion.
int truncated(double value)
{
    if (!(value == value))
        return 0;
    constexpr double lo = double(std::numeric_limits<int>::min());
    constexpr double hi = double(std::numeric_limits<int>::max());
    return int(std::trunc(std::min(std::max(value, lo), hi)));
}

class EditStylesDialog;

// The three drawings of the dialog: each paints what the dialog's widgets
// and lists say at the moment it is painted.
class StyleRenderer : public QWidget {
public:
    enum Kind { Preview, LineColour, FontColour };
    StyleRenderer(EditStylesDialog* dialog, QWidget* parent, Kind kind);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    EditStylesDialog* m_dialog;
    Kind m_kind;
};

class EditStylesDialog : public QDialog {
    Q_OBJECT

public:
    EditStylesDialog();
    ~EditStylesDialog() override;

    void load(UserFunctionInterface* call);
    const QStringList& styleEntries() const { return m_styleEntries; }

    // For the renderers.
    void paintPreview(QPainter& painter, const QSize& size) const;
    QColor lineColour() const { return colornumber::toColor(m_lineColourText.toInt()); }
    QColor fontColour() const { return colornumber::toColor(m_fontColourText.toInt()); }

public slots:
    void chooseColour_pressed();
    void chooseFontColour_pressed();
    void editName_pressed();
    void editStyleName_changed(QListWidgetItem* item);
    void fontBold_toggled();
    void fontItalics_toggled();
    void fontOverline_toggled();
    void fontUnderline_toggled();
    void fontName_changed();
    void fontSize_lostFocus();
    void lineSize_changed(const QString& text);
    void lineType_changed(const QString& text);
    void newStyle_pressed();
    void propertyStyle_changed();
    void revertGlobal_pressed();
    void selectedStyle_changed(QListWidgetItem* current, QListWidgetItem* previous);
    void styleName_pressed(QListWidgetItem* item);
    void duplicate_pressed();

private:
    QString findEntry(const QString& name) const;
    bool isGlobal(const QString& name) const;
    QString currentName() const;
    void loadForm();
    void applyFormToStyle();
    // The stored style of name with the form's font and line fields over it.
    StyleRecord formOver(const QString& name) const;
    void storeStyle(const QString& name, const StyleRecord& record);
    void chooseColour(bool line);
    void createStyle(const QString& base);
    void refreshDrawings();
    QPen formPen() const;

    std::unique_ptr<Ui::EditStylesDialog> m_ui;
    QStringList m_styleNames;
    QStringList m_styleEntries;
    QStringList m_lineTypes;
    QStringList m_defaultStyles;
    QString m_editingName;
    QString m_lineColourText;
    QString m_fontColourText;
    QStringList m_renamableNames;
    QStringList m_globalStyles;
    bool m_updatesEnabled = true;
    bool m_renaming = false;
    StyleRenderer* m_preview = nullptr;
    StyleRenderer* m_lineSwatch = nullptr;
    StyleRenderer* m_fontSwatch = nullptr;
};

StyleRenderer::StyleRenderer(EditStylesDialog* dialog, QWidget* parent, Kind kind)
    : QWidget(parent)
    , m_dialog(dialog)
    , m_kind(kind)
{
    setMinimumSize(parent->size());
    // Fills its holder as the dialog is resized.
    auto* layout = new QVBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(this);
}

void StyleRenderer::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_kind == Preview) {
        m_dialog->paintPreview(painter, size());
        return;
    }
    const QColor colour = m_kind == LineColour ? m_dialog->lineColour() : m_dialog->fontColour();
    painter.fillRect(QRect(QPoint(0, 0), QPoint(width() - 1, height() - 1)), colour);
}

EditStylesDialog::EditStylesDialog()
    : QDialog(nullptr)
    , m_ui(new Ui::EditStylesDialog)
{
    setObjectName(QStringLiteral("EditStyles"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    Ui::EditStylesDialog& ui = *m_ui;
    using D = EditStylesDialog;
    connect(ui.pushbutton_LineColour, &QPushButton::clicked, this, &D::chooseColour_pressed);
    connect(ui.pushbutton_FontColour, &QPushButton::clicked, this, &D::chooseFontColour_pressed);
    connect(ui.pushbutton_EditName, &QPushButton::clicked, this, &D::editName_pressed);
    connect(ui.listbox_StyleNames, &QListWidget::itemChanged, this, &D::editStyleName_changed);
    connect(ui.checkbox_Bold, &QCheckBox::toggled, this, &D::fontBold_toggled);
    connect(ui.checkbox_Italics, &QCheckBox::toggled, this, &D::fontItalics_toggled);
    connect(ui.checkbox_Overline, &QCheckBox::toggled, this, &D::fontOverline_toggled);
    connect(ui.checkbox_Underline, &QCheckBox::toggled, this, &D::fontUnderline_toggled);
    connect(ui.combobox_FontNames, &QComboBox::currentTextChanged, this, &D::fontName_changed);
    connect(ui.spinner_FontSize, &Spinner::changed, this, &D::fontSize_lostFocus);
    connect(ui.spinner_LineSize, &Spinner::changed, this, &D::lineSize_changed);
    connect(ui.combobox_LineType, &QComboBox::currentTextChanged, this, &D::lineType_changed);
    connect(ui.pushbutton_NewStyle, &QPushButton::clicked, this, &D::newStyle_pressed);
    connect(ui.checkbox_PropertyStyle, &QCheckBox::toggled, this, &D::propertyStyle_changed);
    connect(ui.pushButton_RevertGlobal, &QPushButton::clicked, this, &D::revertGlobal_pressed);
    connect(ui.listbox_StyleNames, &QListWidget::currentItemChanged, this,
            &D::selectedStyle_changed);
    connect(ui.listbox_StyleNames, &QListWidget::itemPressed, this, &D::styleName_pressed);
    connect(ui.pushbutton_Duplicate, &QPushButton::clicked, this, &D::duplicate_pressed);

    // The preview shows what the form holds, so whatever changes the form
    // repaints it. That reaches every change at once without repainting
    // while the dialog sits idle.
    for (QCheckBox* box : {ui.checkbox_PreviewAsWire, ui.checkbox_PreviewAsInstance,
                           ui.checkbox_PreviewAsText})
        connect(box, &QCheckBox::toggled, this, &D::refreshDrawings);
}

EditStylesDialog::~EditStylesDialog() = default;

void EditStylesDialog::load(UserFunctionInterface* call)
{
    Ui::EditStylesDialog& ui = *m_ui;
    m_styleNames = dialogcommon::stringArg(call, 0);
    m_styleEntries = dialogcommon::stringArg(call, 1);
    m_lineTypes = dialogcommon::stringArg(call, 2);
    m_defaultStyles = dialogcommon::stringArg(call, 3);
    const QStringList flags = dialogcommon::stringArg(call, 4);
    m_globalStyles = dialogcommon::stringArg(call, 5);
    const bool fontOnly = equals(dialogcommon::elementOr(dialogcommon::stringArg(call, 6), 0),
                                 kFontOnly);

    ui.listbox_StyleNames->addItems(m_styleNames);
    ui.combobox_LineType->addItems(m_lineTypes);
    ui.combobox_FontNames->addItems(QFontDatabase().families());
    ui.listbox_StyleNames->sortItems(Qt::AscendingOrder);
    ui.listbox_StyleNames->setCurrentRow(0);
    loadForm();

    m_preview = new StyleRenderer(this, ui.widget_Preview, StyleRenderer::Preview);
    m_lineSwatch = new StyleRenderer(this, ui.widget_CurrentColour, StyleRenderer::LineColour);
    m_fontSwatch = new StyleRenderer(this, ui.widget_CurrentFontColour, StyleRenderer::FontColour);
    ui.pushbutton_EditName->setEnabled(false);

    for (const QString& flag : flags) {
        QPushButton* button = nullptr;
        if (equals(flag, kNoEdit))
            button = ui.pushbutton_EditName;
        else if (equals(flag, kNoAdd))
            button = ui.pushbutton_NewStyle;
        else if (equals(flag, kNoDuplicate))
            button = ui.pushbutton_Duplicate;
        if (button) {
            button->setEnabled(false);
            button->hide();
        }
    }
    if (fontOnly) {
        for (QWidget* w : {static_cast<QWidget*>(ui.groupBox_LineType),
                           static_cast<QWidget*>(ui.groupBox_LineSize),
                           static_cast<QWidget*>(ui.groupBox_LineColour),
                           static_cast<QWidget*>(ui.checkbox_PreviewAsInstance),
                           static_cast<QWidget*>(ui.checkbox_PreviewAsWire)})
            w->hide();
        ui.checkbox_PreviewAsText->setChecked(true);
    }
}

QString EditStylesDialog::findEntry(const QString& name) const
{
    const QString entry = styles::findEntry(m_styleEntries, name);
    return entry.isEmpty() ? styles::findEntry(m_defaultStyles, name) : entry;
}

bool EditStylesDialog::isGlobal(const QString& name) const
{
    return styles::indexOfEntry(m_globalStyles, name, Qt::CaseInsensitive) >= 0;
}

QString EditStylesDialog::currentName() const
{
    const QListWidgetItem* item = m_ui->listbox_StyleNames->currentItem();
    return item ? item->text() : QString();
}

void EditStylesDialog::loadForm()
{
    if (!m_updatesEnabled)
        return;
    m_updatesEnabled = false;
    Ui::EditStylesDialog& ui = *m_ui;
    const StyleRecord r = StyleRecord::parse(findEntry(currentName()));

    ui.combobox_LineType->setCurrentIndex(
        ui.combobox_LineType->findText(styles::lineTypeName(r), Qt::MatchFixedString));
    ui.spinner_LineSize->setValue(r.lineThickness == 0 ? 1 : r.lineThickness);
    m_lineColourText = QString::number(r.lineColour);
    m_fontColourText = QString::number(r.fontColour);
    for (int i = 0; i < ui.combobox_FontNames->count(); ++i)
        if (ui.combobox_FontNames->itemText(i).compare(r.fontFamily, Qt::CaseInsensitive) == 0)
            ui.combobox_FontNames->setCurrentIndex(i);
    ui.spinner_FontSize->setValue(r.fontSize);
    ui.checkbox_Bold->setChecked(r.fontBold);
    ui.checkbox_Italics->setChecked(r.fontItalics);
    ui.checkbox_Overline->setChecked(r.fontOverline);
    ui.checkbox_Underline->setChecked(r.fontUnderline);
    ui.checkbox_PropertyStyle->setChecked(r.propertyStyle);
    refreshDrawings();
    ui.pushButton_RevertGlobal->setVisible(isGlobal(currentName()));
    m_updatesEnabled = true;
}

StyleRecord EditStylesDialog::formOver(const QString& name) const
{
    const Ui::EditStylesDialog& ui = *m_ui;
    StyleRecord r = StyleRecord::parse(findEntry(name)); // colours stay as stored
    r.fontBold = ui.checkbox_Bold->isChecked();
    r.fontFamily = ui.combobox_FontNames->currentText();
    r.fontItalics = ui.checkbox_Italics->isChecked();
    r.fontSize = truncated(ui.spinner_FontSize->value());
    r.lineThickness = truncated(ui.spinner_LineSize->value());
    styles::setLineType(r, ui.combobox_LineType->currentText());
    r.propertyStyle = ui.checkbox_PropertyStyle->isChecked();
    r.fontOverline = ui.checkbox_Overline->isChecked();
    r.fontUnderline = ui.checkbox_Underline->isChecked();
    return r;
}

void EditStylesDialog::applyFormToStyle()
{
    refreshDrawings();
    if (!m_ui->listbox_StyleNames->currentItem())
        return;
    storeStyle(currentName(), formOver(currentName()));
}

void EditStylesDialog::storeStyle(const QString& name, const StyleRecord& record)
{
    if (!m_updatesEnabled)
        return;
    const QString entry = styles::makeEntry(name, record);
    const QString prefix = name + QLatin1Char('|');
    for (QString& e : m_styleEntries)
        if (e.startsWith(prefix, Qt::CaseSensitive))
            e = entry;
    loadForm();
}

void EditStylesDialog::refreshDrawings()
{
    for (StyleRenderer* r : {m_preview, m_lineSwatch, m_fontSwatch})
        if (r)
            r->update();
}

void EditStylesDialog::selectedStyle_changed(QListWidgetItem* current, QListWidgetItem* previous)
{
    if (current && previous) {
        StyleRecord r = formOver(previous->text());
        const int thickness = m_ui->spinner_LineSize->text().toInt();
        r.lineThickness = thickness == 1 ? 0 : thickness;
        storeStyle(previous->text(), r);
        m_ui->pushbutton_EditName->setEnabled(
            m_renamableNames.contains(current->text(), Qt::CaseInsensitive));
        m_ui->pushButton_RevertGlobal->setVisible(isGlobal(current->text()));
    }
    loadForm();
}

void EditStylesDialog::chooseColour_pressed()
{
    chooseColour(true);
}

void EditStylesDialog::chooseFontColour_pressed()
{
    chooseColour(false);
}

void EditStylesDialog::chooseColour(bool line)
{
    if (!m_ui->listbox_StyleNames->currentItem())
        return;
    const QString name = currentName();
    StyleRecord r = StyleRecord::parse(findEntry(name));
    const QColor chosen =
        QColorDialog::getColor(colornumber::toColor(line ? r.lineColour : r.fontColour), this);
    if (!chosen.isValid())
        return;
    (line ? r.lineColour : r.fontColour) = colornumber::fromColor(chosen);
    storeStyle(name, r);
}

void EditStylesDialog::createStyle(const QString& base)
{
    QString name = base;
    for (int n = 1; m_styleNames.contains(name, Qt::CaseInsensitive); ++n)
        name = base + QString::number(n);
    m_styleNames << name;
    m_styleEntries << styles::makeEntry(name, StyleRecord());

    ListBox* list = m_ui->listbox_StyleNames;
    list->addItem(name);
    m_editingName = name;
    for (int row = 0; row < list->count(); ++row)
        if (equals(list->item(row)->text(), name))
            list->setCurrentItem(list->item(row));
    if (QListWidgetItem* item = list->currentItem()) {
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        list->editItem(item);
    }
    m_ui->pushbutton_EditName->setEnabled(true);
}

void EditStylesDialog::newStyle_pressed()
{
    createStyle(kNewStyle);
}

void EditStylesDialog::duplicate_pressed()
{
    if (!m_ui->listbox_StyleNames->currentItem())
        return;
    const QString name = currentName();
    const StyleRecord r = StyleRecord::parse(findEntry(name));
    int end = name.size();
    while (end > 0 && name.at(end - 1) >= QLatin1Char('0') && name.at(end - 1) <= QLatin1Char('9'))
        --end;
    createStyle(name.left(end));
    storeStyle(m_editingName, r);
}

void EditStylesDialog::editName_pressed()
{
    QListWidgetItem* item = m_ui->listbox_StyleNames->currentItem();
    if (!item)
        return;
    m_editingName = item->text();
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    m_ui->listbox_StyleNames->editItem(item);
}

void EditStylesDialog::styleName_pressed(QListWidgetItem* item)
{
    if (item)
        m_editingName = item->text();
}

void EditStylesDialog::editStyleName_changed(QListWidgetItem* item)
{
    // Setting the text below changes the item again.
    if (!item || m_renaming)
        return;
    m_renaming = true;
    ListBox* list = m_ui->listbox_StyleNames;
    QString name = item->text();
    name.remove(QLatin1Char(' '));
    item->setText(name);
    const bool valid = !name.contains(QLatin1Char('|')) && !name.contains(QLatin1Char(';'))
                       && !m_styleNames.contains(name, Qt::CaseInsensitive)
                       && !name.trimmed().isEmpty();
    if (!valid) {
        item->setText(m_editingName);
    } else {
        for (QString& n : m_styleNames)
            if (equals(n, m_editingName))
                n = name;
        const QString oldPrefix = m_editingName + QLatin1Char('|');
        for (QString& e : m_styleEntries)
            if (e.startsWith(oldPrefix, Qt::CaseSensitive))
                e = name + e.mid(m_editingName.size());
        m_renamableNames.removeOne(m_editingName);
        m_renamableNames << name;
    }
    list->sortItems(Qt::AscendingOrder);
    if (QListWidgetItem* selected = list->selectedItem())
        list->scrollToItem(selected);
    m_renaming = false;
}

void EditStylesDialog::revertGlobal_pressed()
{
    const QString name = currentName();
    const int global = styles::indexOfEntry(m_globalStyles, name, Qt::CaseInsensitive);
    if (global < 0)
        return;
    const int entry = styles::indexOfEntry(m_styleEntries, name, Qt::CaseInsensitive);
    if (entry >= 0)
        m_styleEntries[entry] = m_globalStyles.at(global);
    loadForm();
}

void EditStylesDialog::fontBold_toggled() { applyFormToStyle(); }
void EditStylesDialog::fontItalics_toggled() { applyFormToStyle(); }
void EditStylesDialog::fontOverline_toggled() { applyFormToStyle(); }
void EditStylesDialog::fontUnderline_toggled() { applyFormToStyle(); }
void EditStylesDialog::fontName_changed() { applyFormToStyle(); }
void EditStylesDialog::fontSize_lostFocus() { applyFormToStyle(); }
void EditStylesDialog::lineSize_changed(const QString&) { applyFormToStyle(); }
void EditStylesDialog::lineType_changed(const QString&) { applyFormToStyle(); }
void EditStylesDialog::propertyStyle_changed() { applyFormToStyle(); }

// ------------------------------------------------------------- the preview

QPen EditStylesDialog::formPen() const
{
    return styles::penFor(m_ui->spinner_LineSize->text().toInt(),
                          m_ui->combobox_LineType->currentText(), m_lineColourText.toInt());
}

QPen storedPen(const StyleRecord& r)
{
    return styles::penFor(r.lineThickness, styles::lineTypeName(r), r.lineColour);
}

void drawSource(QPainter& p, int x, int y)
{
    p.drawEllipse(QRect(QPoint(x - 10, y + 10), QPoint(x + 9, y + 29)));
    p.drawLine(x, y + 30, x, y + 40);
    p.drawLine(x, y + 13, x, y + 17);
    p.drawLine(x, y, x, y + 10);
    p.drawLine(x - 2, y + 15, x + 2, y + 15);
}

void drawResistor(QPainter& p, int x, int y)
{
    p.drawLine(x + 3, y + 7, x + 3, y + 23);
    p.drawLine(x - 3, y + 23, x + 3, y + 23);
    p.drawLine(x, y + 7, x, y);
    p.drawLine(x, y + 23, x, y + 30);
    p.drawLine(x - 3, y + 7, x + 3, y + 7);
    p.drawLine(x - 3, y + 23, x - 3, y + 7);
}

void drawGround(QPainter& p)
{
    p.drawLine(210, 70, 210, 80);
    p.drawLine(206, 83, 214, 83);
    p.drawLine(208, 86, 212, 86);
    p.drawLine(200, 80, 220, 80);
}

void drawTerminal(QPainter& p, int x, int y)
{
    p.drawLine(x + 10, y - 5, x + 10, y + 5);
    p.drawLine(x + 10, y - 5, x + 20, y - 5);
    p.drawLine(x + 10, y + 5, x + 20, y + 5);
    p.drawLine(x + 20, y - 5, x + 20, y + 5);
    p.drawLine(x, y, x + 10, y);
}

void EditStylesDialog::paintPreview(QPainter& p, const QSize& size) const
{
    const Ui::EditStylesDialog& ui = *m_ui;
    p.scale(1.55, 1.55);

    const QPen background = storedPen(StyleRecord::parse(findEntry(QStringLiteral("DefaultBackground"))));
    p.fillRect(QRect(0, 0, size.width(), size.height()), background.color());

    p.setPen(storedPen(StyleRecord::parse(findEntry(QStringLiteral("DefaultGrid")))));
    for (int x = 0; x <= size.width(); x += 10)
        for (int y = 0; y <= size.height(); y += 10)
            p.drawLine(x, y, x, y);

    const QString instance = findEntry(QStringLiteral("DefaultInstance"));
    p.setPen(ui.checkbox_PreviewAsInstance->isChecked()
                 ? formPen() : storedPen(StyleRecord::parse(instance)));
    p.setBrush(Qt::NoBrush);
    drawSource(p, 50, 40);
    drawResistor(p, 110, 20);
    drawResistor(p, 110, 70);
    drawGround(p);
    drawTerminal(p, 150, 10);
    drawTerminal(p, 150, 120);

    p.setPen(ui.checkbox_PreviewAsWire->isChecked()
                 ? formPen() : storedPen(StyleRecord::parse(findEntry(QStringLiteral("DefaultWire")))));
    static constexpr int kWires[][4] = {
        {50, 40, 50, 10},    {50, 10, 150, 10},   {110, 10, 110, 20},
        {110, 50, 110, 70},  {110, 100, 110, 120}, {110, 60, 210, 60},
        {210, 60, 210, 70},  {50, 80, 50, 120},   {50, 120, 150, 120},
    };
    for (const auto& w : kWires)
        p.drawLine(w[0], w[1], w[2], w[3]);

    StyleRecord text = StyleRecord::parse(instance);
    if (ui.checkbox_PreviewAsText->isChecked()) {
        text.fontFamily = ui.combobox_FontNames->currentText();
        text.fontSize = truncated(ui.spinner_FontSize->value());
        text.fontBold = ui.checkbox_Bold->isChecked();
        text.fontItalics = ui.checkbox_Italics->isChecked();
        text.fontOverline = ui.checkbox_Overline->isChecked();
        text.fontUnderline = ui.checkbox_Underline->isChecked();
        text.fontColour = m_fontColourText.toInt();
    }
    p.setPen(styles::penFor(0, QStringLiteral("Solid"), text.fontColour));
    p.setFont(styles::fontFor(text));
    p.drawText(QPointF(190.0, 30.0), QStringLiteral("Text 1"));
}

long long runEditStylesDialog(UserFunctionInterface* call)
{
    EditStylesDialog dialog;
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    dialog.load(call);
    if (dialog.exec() != QDialog::Accepted) {
        dialogcommon::setStringResult(call, {QString()});
        return 0;
    }
    dialogcommon::setStringResult(call, dialog.styleEntries());
    return 0;
}

} // namespace

static const FunctionRegistration registerEditStylesDialog(
    "EditStylesDialog", argLimits(3, 7), &runEditStylesDialog,
    {ArgStrings, ArgStrings, ArgStrings, ArgStrings, ArgStrings, ArgStrings, ArgStrings});

#include "editstylesdialog.moc"
