// The widgets of parsed descriptors, and their placement into a dialog's
// pages.
#include "ParameterPages.h"

#include "dialogcommon.h"
#include "hostwidgets.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QSpacerItem>
#include <QTabWidget>

#include <algorithm>

namespace parameterpages {

namespace {

bool validPosition(const ParameterPageSpec& spec, int position)
{
    return position >= 0 && position < spec.parameterCount();
}

bool hasLabel(ParameterKind kind)
{
    switch (kind) {
    case ParameterKind::Real:
    case ParameterKind::Integer:
    case ParameterKind::String:
    case ParameterKind::List:
    case ParameterKind::StaticLabel:
        return true;
    default:
        return false;
    }
}

QString objectNameOf(const char* role, int position)
{
    return QLatin1String(role) + QString::number(position);
}

Spinner* createSpinner(const ParameterDescriptor& d, QWidget* parent)
{
    auto* spinner = new Spinner(parent);
    const bool integer = d.kind == ParameterKind::Integer;
    if (integer || d.step > 0)
        spinner->setStep125(false);
    spinner->setInteger(integer);
    spinner->setMinimumWidth(75);
    spinner->setOutElementIndex(d.elementIndex);
    spinner->setMin(d.minimum);
    spinner->setMax(d.maximum);
    if (d.step > 0)
        spinner->setStep(d.step);
    spinner->setEngMode(!integer);
    spinner->setAllowExpressions(d.numberFlag);
    // As text, so that "10k" or an expression reaches the script unchanged.
    spinner->setText(d.value);
    return spinner;
}

// The last item equal to value, else the last that begins with it (so an
// empty value picks the last item); -1 for none.
int itemForValue(const QStringList& items, const QString& value)
{
    for (int i = items.size() - 1; i >= 0; --i) {
        if (items.at(i).compare(value, Qt::CaseInsensitive) == 0)
            return i;
    }
    for (int i = items.size() - 1; i >= 0; --i) {
        if (items.at(i).startsWith(value, Qt::CaseInsensitive))
            return i;
    }
    return -1;
}

bool isOneOf(const QString& text, const char* a, const char* b)
{
    return text.compare(QLatin1String(a), Qt::CaseInsensitive) == 0
           || text.compare(QLatin1String(b), Qt::CaseInsensitive) == 0;
}

ComboBox* createCombo(const ParameterDescriptor& d, QWidget* parent)
{
    auto* combo = new ComboBox(parent);
    combo->setStripQuotes(d.stringFlag);
    combo->loadStrings(d.items.join(QLatin1Char('|')).toLatin1().constData());
    const int selected = itemForValue(d.items, d.value);
    if (selected >= 0)
        combo->setValue(selected);
    for (int i = combo->count() - 1; i >= 0; --i) {
        const QString text = combo->text(i);
        QString icon;
        if (isOneOf(text, "'0_TO_1'", "0_TO_1"))
            icon = QStringLiteral(":/16x16_rising_edge_no_frame.png");
        else if (isOneOf(text, "'1_TO_0'", "1_TO_0"))
            icon = QStringLiteral(":/16x16_falling_edge_no_frame.png");
        if (!icon.isEmpty())
            combo->setItemIcon(i, QIcon(icon));
    }
    combo->setOutElementIndex(d.elementIndex);
    combo->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    return combo;
}

bool boolValue(const QString& value)
{
    if (value.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (value.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    return dialogcommon::leadingInt(value) != 0;
}

void takeFocus(QWidget* control)
{
    if (auto* spinner = qobject_cast<Spinner*>(control)) {
        spinner->lineEdit()->setFocus(Qt::OtherFocusReason);
        spinner->lineEdit()->selectAll();
    } else if (auto* edit = qobject_cast<EditBox*>(control)) {
        edit->setFocus(Qt::OtherFocusReason);
        edit->selectAll();
    } else {
        control->setFocus(Qt::OtherFocusReason);
    }
}

QGridLayout* topAlignedGrid(QWidget* holder)
{
    auto* grid = new QGridLayout(holder);
    grid->setAlignment(Qt::AlignTop);
    return grid;
}

int baseColumn(const ParameterPageSpec& spec, const ParameterDescriptor& d,
               const PlacementRules& rules)
{
    if (rules.ignoreColumn)
        return 0;
    const bool wide = rules.wideSeparatedColumns && groupHasSeparatedColumns(spec, d.group);
    return gridIndex(d.column) * (wide ? 4 : 3);
}

QString groupKey(const ParameterDescriptor& d, const PlacementRules& rules)
{
    return rules.groupKeyWithTab ? d.tab + d.group : d.group;
}

// A nested group's own grid, so that later descriptors can name it.
void makeNestedGrid(const ParameterDescriptor& d, QWidget* control, PageMaps& maps,
                    const PlacementRules& rules)
{
    if (d.name.isEmpty() || !control)
        return;
    QGridLayout* grid = topAlignedGrid(control);
    if (!rules.nestedGridNameSuffix.isEmpty())
        grid->setObjectName(d.name + rules.nestedGridNameSuffix);
    if (rules.nestedGridSpacer)
        grid->addItem(new QSpacerItem(20, 13, QSizePolicy::Fixed, QSizePolicy::Fixed), 0, 0);
    maps.storeGroup(rules.nestedKeyWithTab ? d.tab + d.name : d.name, control, grid);
}

// Label, control and unit side by side from the base column; a lone label
// or control spans the three columns. With a unit, a lone label or control
// stays out of the grid (and out of sight), though a control still writes
// its element.
void placeInGrid(QGridLayout* grid, int row, int base, const PlacedParameter& w)
{
    if (w.label && w.control) {
        grid->addWidget(w.label, row, base);
        grid->addWidget(w.control, row, base + 1);
    }
    if (w.unit) {
        grid->addWidget(w.unit, row, base + 2);
        if (!(w.label && w.control)) {
            if (w.label)
                w.label->hide();
            if (w.control)
                w.control->hide();
        }
        return;
    }
    if (QWidget* lone = w.label && !w.control ? w.label : (!w.label ? w.control : nullptr))
        grid->addWidget(lone, row, base, 1, 3);
}

void placeSeparators(const ParameterPageSpec& spec, const ParameterDescriptor& d, QWidget* box,
                     QGridLayout* grid, int row, int base, const PlacementRules& rules)
{
    if (rules.separatorPitch <= 0 || !groupHasSeparatedColumns(spec, d.group) || base + 2 <= 3)
        return;
    const int width = rules.fixedSeparatorWidth > 0 ? rules.fixedSeparatorWidth
                                                    : groupSeparatorWidth(spec, d.group);
    for (int column = 3; column < base + 2; column += rules.separatorPitch) {
        auto* line = new QFrame(box);
        line->setFrameShape(QFrame::VLine);
        line->setFrameShadow(QFrame::Sunken);
        line->setLineWidth(1);
        line->setMinimumWidth(width);
        grid->addWidget(line, 0, column, row + 1, 1);
    }
}

PlacedParameter createAll(const ParameterPageSpec& spec, QWidget* parent, int position)
{
    PlacedParameter w;
    w.position = position;
    w.label = createParameterLabel(spec, parent, position);
    w.control = createParameterControl(spec, parent, position);
    w.unit = createParameterUnit(spec, parent, position);
    return w;
}

// Beside Ok: column 0 before the stretch, 1 after it, 2 and above at the
// end; inserted unit first so that they read label, control, unit.
void placeInButtonRow(const ParameterPageSpec& spec, const ParameterDescriptor& d,
                      const PlacementRules& rules)
{
    const PlacedParameter w = createAll(spec, rules.buttonParent, d.position);
    QBoxLayout* row = rules.buttonLayout;
    const int index = std::min(d.column <= 0 ? 0 : (d.column == 1 ? 1 : 4), row->count());
    for (QWidget* widget : {static_cast<QWidget*>(w.unit), w.control, static_cast<QWidget*>(w.label)}) {
        if (widget)
            row->insertWidget(index, widget);
    }
    if (rules.placed)
        rules.placed(d, w);
}

void placeNestedGroup(const ParameterPageSpec& spec, const ParameterDescriptor& d, PageMaps& maps,
                      const PlacementRules& rules)
{
    const QString key = groupKey(d, rules);
    QWidget* box = maps.group(key);
    QGridLayout* grid = maps.groupGrid(key);
    if (!box || !grid)
        return;
    PlacedParameter w;
    w.position = d.position;
    w.control = createParameterControl(spec, box, d.position);
    if (!w.control)
        return;
    grid->addWidget(w.control, gridIndex(d.row), baseColumn(spec, d, rules), 1, 3);
    makeNestedGrid(d, w.control, maps, rules);
    if (rules.placed)
        rules.placed(d, w);
}

void placeParameter(const ParameterPageSpec& spec, const ParameterDescriptor& d, PageMaps& maps,
                    const PlacementRules& rules)
{
    if (rules.buttonLayout && rules.buttonParent
        && d.group.compare(buttonsGroupName(), Qt::CaseInsensitive) == 0) {
        placeInButtonRow(spec, d, rules);
        return;
    }
    const QString key = groupKey(d, rules);
    QWidget* box = maps.group(key);
    QGridLayout* grid = maps.groupGrid(key);
    if (!box || !grid)
        return;
    const int row = gridIndex(d.row);
    const int base = baseColumn(spec, d, rules);
    const PlacedParameter w = createAll(spec, box, d.position);
    placeInGrid(grid, row, base, w);
    placeSeparators(spec, d, box, grid, row, base, rules);
    if (d.isGroupLike)
        makeNestedGrid(d, w.control, maps, rules);
    if (rules.placed)
        rules.placed(d, w);
}

} // namespace

QLabel* createParameterLabel(const ParameterPageSpec& spec, QWidget* parent, int position)
{
    if (!validPosition(spec, position))
        return nullptr;
    const ParameterDescriptor& d = spec.parameter(position);
    if (!hasLabel(d.kind))
        return nullptr;
    auto* label = new QLabel(d.name, parent);
    label->setObjectName(objectNameOf("parameterLabel", position));
    if (!d.toolTip.isEmpty())
        label->setToolTip(d.toolTip);
    return label;
}

QLabel* createParameterUnit(const ParameterPageSpec& spec, QWidget* parent, int position)
{
    if (!validPosition(spec, position))
        return nullptr;
    const ParameterDescriptor& d = spec.parameter(position);
    if (d.unitText.isEmpty())
        return nullptr;
    auto* unit = new QLabel(replaceUnitPlaceholders(d.unitText), parent);
    unit->setObjectName(objectNameOf("parameterUnit", position));
    return unit;
}

QWidget* createParameterControl(const ParameterPageSpec& spec, QWidget* parent, int position)
{
    if (!validPosition(spec, position))
        return nullptr;
    const ParameterDescriptor& d = spec.parameter(position);
    QWidget* control = nullptr;
    switch (d.kind) {
    case ParameterKind::Real:
    case ParameterKind::Integer:
        control = createSpinner(d, parent);
        break;
    case ParameterKind::String: {
        auto* edit = new EditBox(parent);
        edit->setMinimumWidth(100); // a model name fits without scrolling
        edit->setText(d.value);
        edit->setOutElementIndex(d.elementIndex);
        // The widget library's EditBox writes its text as it is; the flag
        // is kept for a host whose box strips quotes.
        edit->setProperty("stripQuotes", d.stringFlag);
        control = edit;
        break;
    }
    case ParameterKind::List:
        control = createCombo(d, parent);
        break;
    case ParameterKind::Bool: {
        auto* check = new CheckBox(parent);
        check->setText(d.name);
        check->setChecked(boolValue(d.value));
        check->setOutElementIndex(d.elementIndex);
        control = check;
        break;
    }
    case ParameterKind::StaticLabel:
        return nullptr;
    case ParameterKind::PlainGroup: {
        auto* box = new GroupBox(parent);
        box->setTitle(d.name);
        box->setCheckable(false);
        control = box;
        break;
    }
    case ParameterKind::CheckGroup: {
        auto* box = new GroupBox(parent);
        box->setTitle(d.name);
        box->setCheckable(true);
        box->setChecked(dialogcommon::leadingInt(d.value) != 0);
        box->setOutElementIndex(d.elementIndex);
        control = box;
        break;
    }
    }
    control->setObjectName(objectNameOf("parameter", position));
    if (d.takesFocus)
        takeFocus(control);
    if (!d.toolTip.isEmpty())
        control->setToolTip(d.toolTip);
    return control;
}

GroupBox* createGroupBox(const ParameterPageSpec& spec, QWidget* parent, int position)
{
    if (position < 0 || position >= spec.groupCount())
        return nullptr;
    const GroupDescriptor& g = spec.group(position);
    auto* box = new GroupBox(parent);
    box->setObjectName(objectNameOf("group", position));
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    box->setTitle(g.title);
    if (g.isPlain) {
        box->setCheckable(false);
        box->setOutElementIndex(-1);
    } else {
        box->setCheckable(true);
        box->setChecked(g.checked);
        box->setOutElementIndex(g.elementIndex);
    }
    return box;
}

void readArguments(UserFunctionInterface* call, QStringList* args, int count)
{
    for (int i = 0; i < count; ++i)
        args[i] = dialogcommon::stringArg(call, i);
}

int applyDialogInfo(QWidget* dialog, QWidget* headline, QWidget* helpButton,
                    const QStringList& info, int titleElement, int headlineElement, int helpElement)
{
    if (titleElement >= 0 && titleElement < info.size())
        dialog->setWindowTitle(info.at(titleElement));
    if (headline && headlineElement >= 0 && dialogcommon::elementOr(info, headlineElement).isEmpty())
        headline->hide();
    const int topic = helpTopicOf(info, helpElement);
    if (topic < 0 && helpButton)
        helpButton->hide();
    return topic;
}

void PageMaps::storePage(const QString& tab, QWidget* page, QGridLayout* grid)
{
    m_pages[tab] = page;
    m_pageGrids[tab] = grid;
}

void PageMaps::storeGroup(const QString& key, QWidget* box, QGridLayout* grid)
{
    m_groups[key] = box;
    m_groupGrids[key] = grid;
}

void PageMaps::storeFormGroup(const QString& key, QWidget* box)
{
    auto* grid = qobject_cast<QGridLayout*>(box->layout());
    if (grid)
        grid->setAlignment(Qt::AlignTop);
    storeGroup(key, box, grid);
}

QWidget* makePage(PageMaps& maps, const QString& title, int margin, int spacing)
{
    auto* page = new QWidget;
    page->setObjectName(title);
    QGridLayout* grid = topAlignedGrid(page);
    if (margin >= 0)
        grid->setContentsMargins(margin, margin, margin, margin);
    if (spacing >= 0)
        grid->setSpacing(spacing);
    maps.storePage(title, page, grid);
    return page;
}

void makeTabPages(const ParameterPageSpec& spec, PageMaps& maps, QTabWidget* tabs, int margin,
                  int spacing)
{
    for (const QString& title : spec.tabTitles())
        tabs->addTab(makePage(maps, title, margin, spacing), title);
}

void placeGroups(const ParameterPageSpec& spec, PageMaps& maps,
                 const std::function<void(QGridLayout*, const GroupDescriptor&)>& afterGroup)
{
    for (int position = 0; position < spec.groupCount(); ++position) {
        const GroupDescriptor& g = spec.group(position);
        QWidget* page = maps.page(g.tab);
        QGridLayout* pageGrid = maps.pageGrid(g.tab);
        if (!page || !pageGrid)
            continue; // a group on a tab that doesn't exist is dropped
        GroupBox* box = createGroupBox(spec, page, position);
        maps.storeGroup(g.tab + g.title, box, topAlignedGrid(box));
        pageGrid->addWidget(box, gridIndex(g.firstRow), gridIndex(g.firstColumn),
                            gridSpan(g.firstRow, g.lastRow), gridSpan(g.firstColumn, g.lastColumn));
        if (afterGroup)
            afterGroup(pageGrid, g);
    }
}

void placeParameters(const ParameterPageSpec& spec, PageMaps& maps, const PlacementRules& rules)
{
    const int first = std::max(0, rules.firstDescriptor);
    if (rules.nestedGroupsFirst) {
        for (int p = first; p < spec.parameterCount(); ++p) {
            if (spec.parameter(p).isGroupLike)
                placeNestedGroup(spec, spec.parameter(p), maps, rules);
        }
    }
    for (int p = first; p < spec.parameterCount(); ++p) {
        const ParameterDescriptor& d = spec.parameter(p);
        if (rules.nestedGroupsFirst && d.isGroupLike)
            continue;
        placeParameter(spec, d, maps, rules);
    }
}

} // namespace parameterpages
