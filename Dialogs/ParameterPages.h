// Parameter pages built from descriptor text.
//
// A script that doesn't know at writing time which parameters a device has
// describes its pages in four string arrays: tab titles, group descriptors,
// parameter descriptors and current values. A descriptor is one string of
// up to ten fields separated by ":" ("\\:" is a literal colon inside a
// parameter field).
//
//   group:     tab : kind : title : firstRow : firstColumn : lastRow :
//              lastColumn : checkElement : separatedColumns : separatorWidth
//   parameter: tab : group : name : row : column : unit : type :
//              min|max|step or item|item|... : flag : toolTip
//
// Use it in three steps:
//   1. Parse: ParameterPageSpec spec(tabs, params, groups, values) is a plain
//      function of strings to a value; nothing here touches a widget.
//   2. Create: createParameterLabel / createParameterControl /
//      createParameterUnit / createGroupBox make the widgets of one parsed
//      entry. Controls carry their outElementIndex, so the host's binding
//      collects them into the result on Ok.
//   3. Place: a dialog registers its holders (tab pages, fixed groups) in a
//      PageMaps, then runs placeGroups and placeParameters with the
//      PlacementRules that describe its own layout conventions.
//
// Result numbering: every descriptor that holds a value gets the next
// element, in descriptor order; "label" and "group" descriptors take none.
// The same index reads the incoming value and names the outgoing element.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QTabWidget;
class QWidget;
class GroupBox;
struct UserFunctionInterface;

namespace parameterpages {

// Bounds on what a descriptor may ask of a grid, so that a row of 2^31 can
// neither allocate a giant layout nor overflow a span.
constexpr int kMaxGridIndex = 255;
// Largest result element a group's check state may name; a script asking
// for more would make the host allocate a result of that length.
constexpr int kMaxElementIndex = 9999;

// Title of a tab or group when the descriptor leaves it empty.
QString defaultTabTitle(); // "Parameters"
// The group whose parameters go to the dialog's row of buttons.
QString buttonsGroupName(); // "*#!Buttons"

enum class ParameterKind { Real, Integer, String, List, Bool, StaticLabel, PlainGroup, CheckGroup };

struct ParameterDescriptor {
    QString name;    // label text, check box text or group title
    QString unitText; // raw, placeholders not yet replaced
    QString toolTip;
    QString value;   // the incoming value, "0" when the values run out
    QString tab;
    QString group;
    ParameterKind kind = ParameterKind::Real;
    bool takesFocus = false;  // the first descriptor's control gets focus
    bool isGroupLike = false; // PlainGroup or CheckGroup
    bool stringFlag = false;  // String, List: strip quotes
    bool numberFlag = true;   // Real, Integer: allow expressions
    double minimum = -1e100;
    double maximum = 1e100;
    double step = 0.0;
    int elementIndex = -1; // result element; -1 for labels and plain groups
    int position = 0;      // index among the parameter descriptors
    int row = 0;           // as written; placement clamps
    int column = 0;
    QStringList items;     // field 7 split at "|"
};

struct GroupDescriptor {
    QString tab;
    QString title;
    bool isPlain = true;
    bool checked = false;
    bool separatedColumns = false;
    int elementIndex = -1; // element of the check state; -1 for none
    int position = 0;
    int firstRow = 0; // as written; placement clamps
    int firstColumn = 0;
    int lastRow = 0;
    int lastColumn = 0;
    int separatorWidth = 6;
};

// The parsed form of one dialog's descriptors. Temporary: build it, build
// the pages from it, drop it.
class ParameterPageSpec {
public:
    // Parses in the order tabs, groups, params.
    ParameterPageSpec(const QStringList& tabs, const QStringList& params, const QStringList& groups,
                      const QStringList& values);
    // For dialogs with fixed holders: no tab and no group.
    ParameterPageSpec(const QStringList& params, const QStringList& values);

    int parameterCount() const { return static_cast<int>(m_parameters.size()); }
    int groupCount() const { return static_cast<int>(m_groups.size()); }
    int tabCount() const { return m_tabs.size(); }

    // Out of range: an empty descriptor (and an empty title).
    const ParameterDescriptor& parameter(int position) const;
    const GroupDescriptor& group(int position) const;
    QString tabTitle(int position) const;
    const QStringList& tabTitles() const { return m_tabs; }

    QString groupTab(int position) const { return group(position).tab; }
    QString groupTitle(int position) const { return group(position).title; }
    QString parameterTab(int position) const { return parameter(position).tab; }
    QString parameterGroup(int position) const { return parameter(position).group; }
    QString parameterName(int position) const { return parameter(position).name; }

    // Largest first row and first column of any group, as written.
    int maxGroupFirstRow() const { return m_maxFirstRow; }
    int maxGroupFirstColumn() const { return m_maxFirstColumn; }

private:
    void parseTabs(const QStringList& tabs);
    void parseGroups(const QStringList& groups, const QStringList& values);
    void parseParameters(const QStringList& params, const QStringList& values);

    QStringList m_tabs;
    std::vector<GroupDescriptor> m_groups;
    std::vector<ParameterDescriptor> m_parameters;
    int m_maxFirstRow = 0;
    int m_maxFirstColumn = 0;
};

// ------------------------------------------------------------ text helpers

// The ten fields of a descriptor: "\\:" is a literal colon, fields behind
// the tenth are dropped, missing ones are empty.
QStringList splitDescriptor(const QString& descriptor);
// "__Ohms__", "__degrees__", "__micro__", "__Mho__" as their characters.
QString replaceUnitPlaceholders(const QString& unit);
// The kind a type keyword names, and whether it is one of the groups.
ParameterKind kindOfKeyword(const QString& keyword, bool* groupLike = nullptr);

// First group descriptor, in position order, titled title (ignoring case).
// 0 when there is none.
bool groupHasSeparatedColumns(const ParameterPageSpec& spec, const QString& title);
int groupSeparatorWidth(const ParameterPageSpec& spec, const QString& title);

// ---------------------------------------------------------------- widgets

// A plain QLabel with the name, for Real, Integer, String, List and label
// descriptors; null for the others and for a position out of range.
QLabel* createParameterLabel(const ParameterPageSpec& spec, QWidget* parent, int position);
// The bound control of the descriptor's kind; null for a label.
QWidget* createParameterControl(const ParameterPageSpec& spec, QWidget* parent, int position);
// A QLabel with the unit text, placeholders replaced; null without unit.
QLabel* createParameterUnit(const ParameterPageSpec& spec, QWidget* parent, int position);
// The box of group descriptor position; null out of range.
GroupBox* createGroupBox(const ParameterPageSpec& spec, QWidget* parent, int position);

// ------------------------------------------------------------- placement

// Orders keys without regard to case, so "Extracted Model" finds
// "Extracted model".
struct CaseInsensitiveLess {
    bool operator()(const QString& a, const QString& b) const
    {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    }
};

template <typename T>
using CaseInsensitiveMap = std::map<QString, T, CaseInsensitiveLess>;

// The places a dialog's pages are built into. A missing key reads as null:
// a place that doesn't exist.
class PageMaps {
public:
    void storePage(const QString& tab, QWidget* page, QGridLayout* grid);
    void storeGroup(const QString& key, QWidget* box, QGridLayout* grid);
    // A group the form itself holds, with the grid it gave the group, top-aligned.
    void storeFormGroup(const QString& key, QWidget* box);
    QWidget* page(const QString& tab) const { return find(m_pages, tab); }
    QGridLayout* pageGrid(const QString& tab) const { return find(m_pageGrids, tab); }
    QWidget* group(const QString& key) const { return find(m_groups, key); }
    QGridLayout* groupGrid(const QString& key) const { return find(m_groupGrids, key); }

private:
    template <typename T>
    static T* find(const CaseInsensitiveMap<T*>& map, const QString& key)
    {
        const auto it = map.find(key);
        return it == map.end() ? nullptr : it->second;
    }

    CaseInsensitiveMap<QWidget*> m_pages;
    CaseInsensitiveMap<QGridLayout*> m_pageGrids;
    CaseInsensitiveMap<QWidget*> m_groups;
    CaseInsensitiveMap<QGridLayout*> m_groupGrids;
};

// What one descriptor became; any of the three may be null.
struct PlacedParameter {
    int position = 0;
    QLabel* label = nullptr;
    QWidget* control = nullptr;
    QLabel* unit = nullptr;
};

// How a dialog places its descriptors. The dialogs of the family differ on
// purpose; each difference is one field here.
struct PlacementRules {
    int firstDescriptor = 0;
    // Group-like descriptors in a pass of their own before the others
    // (placed at their base column, three wide); otherwise they are placed
    // in the one pass like any control.
    bool nestedGroupsFirst = true;
    // A parameter finds its group under tab + group, else under group.
    bool groupKeyWithTab = true;
    // A nested group is stored under tab + name, else under name alone.
    bool nestedKeyWithTab = true;
    // A nested group's grid gets a fixed 20 x 13 spacer at (0, 0).
    bool nestedGridSpacer = false;
    // Object name of a nested group's grid: name + this suffix, when set.
    QString nestedGridNameSuffix;
    // Base column: column times 3 (times 4 in a group with separated
    // columns); ignoreColumn puts every descriptor at column 0.
    bool ignoreColumn = false;
    bool wideSeparatedColumns = true;
    // Vertical separators in groups with separated columns: from column 3
    // in steps of separatorPitch (0: none), minimum width fixedSeparatorWidth
    // or, when that is 0, the group's own width.
    int separatorPitch = 4;
    int fixedSeparatorWidth = 0;
    // The "*#!Buttons" group: its descriptors go into this layout, created
    // with buttonParent as their parent. Null: the group doesn't exist.
    QBoxLayout* buttonLayout = nullptr;
    QWidget* buttonParent = nullptr;
    // Called for each descriptor that got widgets, in placement order.
    std::function<void(const ParameterDescriptor&, const PlacedParameter&)> placed;
};

// A page with a top-aligned grid, named and stored under title. A negative
// margin or spacing keeps the layout's default.
QWidget* makePage(PageMaps& maps, const QString& title, int margin, int spacing);

// One such page per tab title, appended to tabs.
void makeTabPages(const ParameterPageSpec& spec, PageMaps& maps, QTabWidget* tabs, int margin,
                  int spacing);

// Group boxes into their tab pages, at their grid area; each stored with a
// new top-aligned grid under tab + title. afterGroup runs for each group
// placed, with its page grid and descriptor.
void placeGroups(const ParameterPageSpec& spec, PageMaps& maps,
                 const std::function<void(QGridLayout*, const GroupDescriptor&)>& afterGroup = {});
// Nested groups and parameters, by rules.
void placeParameters(const ParameterPageSpec& spec, PageMaps& maps, const PlacementRules& rules);

// ------------------------------------------------ helpers of the family

// The arguments of the tabbed dialogs of the family, in call order.
enum TabbedArgument { ArgTabs, ArgGroups, ArgParams, ArgValues, ArgInfo, TabbedArgumentCount };

// The number behind the object name of a dialog whose shape its arguments
// decide, so that stored window geometry follows the set of parameters:
// the names (field 2 of each parameter by a plain split at ":") and the
// help topic element of info when present, hashed, modulo 1001.
int descriptorSignature(const QStringList& params, const QStringList& info, int helpElement);
// The help topic in element index of info, read as atoi reads it; -1 when
// info is shorter.
int helpTopicOf(const QStringList& info, int index);
// Opens help topic number topic.
void runHelpTopic(int topic);
// The string arguments 0 to count - 1 of call into args.
void readArguments(UserFunctionInterface* call, QStringList* args, int count);
// Applies a dialog information argument: the window title from its element
// titleElement when present, the headline hidden when its element is absent
// or empty (headlineElement -1: no headline rule), and the help button hidden
// when the topic in helpElement is negative or absent. Returns the topic.
int applyDialogInfo(QWidget* dialog, QWidget* headline, QWidget* helpButton,
                    const QStringList& info, int titleElement, int headlineElement,
                    int helpElement);

// Grid position and span as placement uses them, clamped to the grid's
// sane range; a negative last row or column spans to the edge (-1).
int gridIndex(int value);
int gridSpan(int first, int last);

} // namespace parameterpages
