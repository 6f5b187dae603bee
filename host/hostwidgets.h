// The host widget library as the dialog module sees it: Qt widgets that a
// script call can fill and read back, and the image resources the forms use.
//
// A bound widget carries three numbers (VT_FunctionDef): the script argument
// that fills it, the element of that argument, and the element of the string
// result it writes; -1 means none. The host's walker loads the widgets before
// a dialog is shown and collects them on accept. All binding values and the
// other settings are Qt properties with setXxx setters, so forms compiled by
// uic can set them; declare a class in a form as
//   <customwidget><class>Spinner</class><extends>QWidget</extends>
//   <header>hostwidgets.h</header></customwidget>
//
// Images: the library registers ":/16x16_uparrow_transparent_bg.png",
// ":/16x16_downarrow_transparent_bg.png", ":/16x16_rising_edge_no_frame.png",
// ":/16x16_falling_edge_no_frame.png", ":/shift_left_32.png",
// ":/shift_right_32.png", ":/stop.png", ":/options.png",
// ":/qmessagebox-warn_transparent_bg.png", ":/qmessagebox-quest_transparent_bg.png",
// ":/qmessagebox-info_transparent_bg.png", ":/16x16_rightarrow_transparent_bg.png",
// ":/threshold_hysteresis.png", ":/16x16_save_o.png", ":/power_probe_24x24.png",
// the LoopForge block pictures (":/adder_32_0.png" ... ":/epwm_beta1.png", see
// images/blockimages.cpp) and the diode configurations and tool tip pictures of
// model extraction (":/single_1p0.png" ...
// ":/select_button_mouse_cursor_transparent.png", see images/deviceimages.cpp)
// as it loads.
#pragma once

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPen>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

#define VT_WIDGETS_API __attribute__((visibility("default")))

class QButtonGroup;
class QToolButton;
struct UserFunctionInterface;

// ------------------------------------------------------------------ binding

// Mix-in that binds a widget to the script call. The walker finds bound
// widgets among a dialog's children by casting to this class.
class VT_WIDGETS_API VT_FunctionDef {
public:
    VT_FunctionDef() = default;
    virtual ~VT_FunctionDef();

    // For the host's walker; the defaults are what every widget answers.
    virtual int bindingVersion() const;      // 1
    virtual bool isBindable() const;         // true
    virtual int bindingPriority() const;     // 10
    virtual bool isReadOnlyBinding() const;  // false
    // Fills the widget from the call beyond its own element (a list of
    // items, for instance). True if it took anything. Default: false.
    virtual bool initialiseWidget(UserFunctionInterface* call);
    virtual bool collectsItself() const;     // false

    int argIndex() const { return m_argIndex; }
    void setArgIndex(int index) { m_argIndex = index; }
    int inElementIndex() const { return m_inElementIndex; }
    void setInElementIndex(int index) { m_inElementIndex = index; }
    int outElementIndex() const { return m_outElementIndex; }
    void setOutElementIndex(int index) { m_outElementIndex = index; }

protected:
    int m_argIndex = -1;
    int m_outElementIndex = -1;
    int m_inElementIndex = -1;
};

// ------------------------------------------------------------------ Spinner

// Numeric entry with up and down buttons. The text is kept exactly as set
// ("10k" stays "10k"); value() reads it with engineering suffixes. Up and
// down (buttons, arrow keys, wheel) step by, in this order of preference:
// the fixed step if positive; the 1-2-5 sequence if step125 (1, 2, 5, 10 ...
// and 0.5, 0.2, 0.1 ..., mirrored for negatives, a value off the sequence
// going to the next one in the direction of the step); 1 for integers; else
// one tenth of the value's decade (4.7 -> 4.8, 1 -> 0.99, 0 -> 1), so the
// second significant digit moves; off-grid values go to the next grid point. A step is clamped to min/max and
// emits maxHit()/minHit() when it runs into them; setValue and setText
// aren't clamped. With allowExpressions a text in braces ("{a*2}") is kept
// verbatim; its value() is 0 and steps leave it alone. A typed text that
// is neither a number nor an allowed expression is put back to the last
// good text when editing finishes.
class VT_WIDGETS_API Spinner : public QWidget, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(double min READ min WRITE setMin)
    Q_PROPERTY(double max READ max WRITE setMax)
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(bool integer READ isInteger WRITE setInteger)
    Q_PROPERTY(bool step125 READ step125 WRITE setStep125)
    Q_PROPERTY(bool engMode READ engMode WRITE setEngMode)
    Q_PROPERTY(int precision READ precision WRITE setPrecision)
    Q_PROPERTY(double step READ step WRITE setStep)
    Q_PROPERTY(bool allowExpressions READ allowExpressions WRITE setAllowExpressions)
    Q_PROPERTY(QString text READ text WRITE setText USER true)

public:
    explicit Spinner(QWidget* parent = nullptr, const char* name = nullptr);
    ~Spinner() override;

    // The number in the text; 0 for an expression or a text with no number.
    double value() const;
    // Shows v as integer, engMode and precision say. The display follows
    // later changes of those three until the text is set otherwise.
    void setValue(double v);
    QString text() const;
    void setText(const QString& text);

    double min() const { return m_min; }
    void setMin(double min);
    double max() const { return m_max; }
    void setMax(double max);
    bool isInteger() const { return m_integer; }
    void setInteger(bool integer);
    bool step125() const { return m_step125; }
    void setStep125(bool on) { m_step125 = on; }
    bool engMode() const { return m_engMode; }
    void setEngMode(bool on);
    int precision() const { return m_precision; }
    void setPrecision(int digits); // 1 to 17; default 6
    double step() const { return m_step; }
    void setStep(double step); // 0: no fixed step
    bool allowExpressions() const { return m_allowExpressions; }
    void setAllowExpressions(bool allow);

    // The text field, for focus and selection.
    QLineEdit* lineEdit() const { return m_edit; }

public slots:
    virtual void pressUp();
    virtual void pressDown();

signals:
    void changed(const QString& text);
    void textChanged(const QString& text);
    void maxHit();
    void minHit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void stepBy(int direction);
    double stepFrom(double v, int direction) const;
    bool isExpression(const QString& text) const;
    bool isGood(const QString& text) const;
    QString format(double v) const;
    void showValue(double v);
    void refreshFormat();
    void editTextChanged(const QString& text);
    void editingFinished();

    QLineEdit* m_edit = nullptr;
    QToolButton* m_up = nullptr;
    QToolButton* m_down = nullptr;
    QString m_lastGood;
    double m_min = -1e300;
    double m_max = 1e300;
    double m_step = 0.0;
    double m_shownValue = 0.0;
    int m_precision = 6;
    int m_wheelRest = 0;
    bool m_integer = false;
    bool m_step125 = false;
    bool m_engMode = false;
    bool m_allowExpressions = false;
    bool m_formatted = false; // the text came from setValue or a step
    bool m_settingText = false;
};

// -------------------------------------------------------------- text widgets

class VT_WIDGETS_API EditBox : public QLineEdit, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)

public:
    explicit EditBox(QWidget* parent = nullptr, const char* name = nullptr);
    ~EditBox() override;
};

class VT_WIDGETS_API TextEdit : public QPlainTextEdit, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit TextEdit(QWidget* parent = nullptr, const char* name = nullptr);
    ~TextEdit() override;

    QString text() const { return toPlainText(); }
    void setText(const QString& text) { setPlainText(text); }
};

// Input only: a Label takes its text from the call and writes nothing, so
// its outElementIndex stays -1.
class VT_WIDGETS_API Label : public QLabel, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)

public:
    explicit Label(QWidget* parent = nullptr, const char* name = nullptr);
    ~Label() override;

private:
    using VT_FunctionDef::setOutElementIndex;
};

// ------------------------------------------------------------------ choices

// realValue is 1 when checked, 0 when not; any non-zero value checks it.
class VT_WIDGETS_API CheckBox : public QCheckBox, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(double realValue READ realValue WRITE setRealValue)

public:
    explicit CheckBox(QWidget* parent = nullptr, const char* name = nullptr);
    ~CheckBox() override;

    double realValue() const { return isChecked() ? 1.0 : 0.0; }
    void setRealValue(double value) { setChecked(value != 0.0); }
};

// Checkable from construction; its checked state is its value.
class VT_WIDGETS_API GroupBox : public QGroupBox, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)

public:
    explicit GroupBox(QWidget* parent = nullptr, const char* name = nullptr);
    ~GroupBox() override;
};

// A group of radio buttons whose value is the id of the selected one. The
// members are the QRadioButtons inside the group (not inside a nested
// RadioGroup), numbered from 0 in the order of the group's layout, nested
// layouts and container widgets included; buttons outside any layout
// follow in child order. Ids are assigned on first use and again when the
// set of buttons changes. -1 means no selection. An id set before its
// button exists (as uic does, setting properties before children) is kept
// and applied once the button is there.
class VT_WIDGETS_API RadioGroup : public QGroupBox, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(double realValue READ value WRITE setRealValue)
    Q_PROPERTY(int selectedId READ selectedId WRITE setSelectedId)
    Q_PROPERTY(QString stringValue READ text WRITE setStringValue)

public:
    explicit RadioGroup(QWidget* parent = nullptr, const char* name = nullptr);
    ~RadioGroup() override;

    int selectedId() const;
    int count() const;
    QRadioButton* button(int id) const; // null out of range
    // Selects button id; -1 clears the selection; other ids change nothing
    // (or wait for their button). Emits no clicked().
    void setButton(int id);
    void setSelectedId(int id) { setButton(id); }
    double value() const { return selectedId(); }
    void setValue(double value);
    void setRealValue(double value) { setValue(value); }
    // The selected id in decimal, "-1" for none.
    QString text() const;
    // Takes an id in decimal; a text that isn't one changes nothing.
    void setText(const QString& text);
    void setStringValue(const QString& text) { setText(text); }
    void assignIds();

signals:
    // The user clicked button id (mouse or keyboard).
    void clicked(int id);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void ensureIds() const;
    void applyPending();

    QButtonGroup* m_group = nullptr;
    int m_pendingId = -1;
};

class VT_WIDGETS_API RadioButton : public QRadioButton, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)

public:
    explicit RadioButton(QWidget* parent = nullptr);
    ~RadioButton() override;
};

// ------------------------------------------------------------------- lists

// A choice from a list of items. The items come in one string separated by
// "|" (loadStrings), from element itemsElementIndex of argument
// itemsArgIndex when the host initialises the widget. With stripQuotes the
// stringValue loses one pair of enclosing quotes (" or ').
class VT_WIDGETS_API ComboBox : public QComboBox, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(int itemsArgIndex READ itemsArgIndex WRITE setItemsArgIndex)
    Q_PROPERTY(int itemsElementIndex READ itemsElementIndex WRITE setItemsElementIndex)
    Q_PROPERTY(bool stripQuotes READ stripQuotes WRITE setStripQuotes)
    Q_PROPERTY(QString stringValue READ stringValue WRITE setStringValue)

public:
    explicit ComboBox(QWidget* parent = nullptr, const char* name = nullptr);
    ~ComboBox() override;

    int itemsArgIndex() const { return m_itemsArgIndex; }
    void setItemsArgIndex(int index) { m_itemsArgIndex = index; }
    int itemsElementIndex() const { return m_itemsElementIndex; }
    void setItemsElementIndex(int index) { m_itemsElementIndex = index; }

    // Loads the items from element itemsElementIndex of argument
    // itemsArgIndex; true if there was one.
    bool initialiseWidget(UserFunctionInterface* call) override;

    // Replaces the items by the parts of items split at "|"; null or ""
    // gives none. Bytes are Latin-1, as the host passes them.
    void loadStrings(const char* items);
    using QComboBox::insertItem;
    void insertItem(const QString& text, int index); // -1 appends
    QString text(int index) const;                   // "" out of range
    void setValue(double index);                     // out of range: no change
    // The current text, without enclosing quotes when stripQuotes is on.
    QString stringValue() const;
    // Makes the item with exactly this text current (with stripQuotes, also
    // an item that is the text in quotes); failing that, an editable combo
    // takes it as its edit text, others keep their item.
    void setStringValue(const QString& text);
    bool stripQuotes() const { return m_stripQuotes; }
    void setStripQuotes(bool on) { m_stripQuotes = on; }

private:
    int m_itemsElementIndex = -1;
    int m_itemsArgIndex = -1;
    bool m_stripQuotes = false;
};

// A list with selection. Its string value: in single selection the selected
// item's text; with several selected items their texts in row order joined
// by "|"; "" when nothing is selected (in NoSelection mode the current
// item's text). setStringValue takes the same form.
class VT_WIDGETS_API ListBox : public QListWidget, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(int itemsArgIndex READ itemsArgIndex WRITE setItemsArgIndex)
    Q_PROPERTY(int itemsElementIndex READ itemsElementIndex WRITE setItemsElementIndex)
    Q_PROPERTY(QString stringValue READ currentText WRITE setStringValue)

public:
    explicit ListBox(QWidget* parent = nullptr, const char* name = nullptr);
    ~ListBox() override;

    int itemsArgIndex() const { return m_itemsArgIndex; }
    void setItemsArgIndex(int index) { m_itemsArgIndex = index; }
    int itemsElementIndex() const { return m_itemsElementIndex; }
    void setItemsElementIndex(int index) { m_itemsElementIndex = index; }

    bool initialiseWidget(UserFunctionInterface* call) override;
    void loadStrings(const char* items); // as ComboBox::loadStrings

    QString currentText() const;
    QListWidgetItem* selectedItem() const; // first selected in row order, or null
    // First item in row order that matches, or null.
    QListWidgetItem* findItem(const QString& text, Qt::MatchFlag flag) const;
    int index(QListWidgetItem* item) const; // -1 for null or a stranger
    void setSelected(QListWidgetItem* item, bool selected) const;
    void removeItem(int row); // out of range: nothing
    // Single selection: selects and makes current the first item with
    // exactly this text (none: no change). Several: selects each "|" part.
    void setStringValue(const QString& text);

private:
    int m_itemsElementIndex = -1;
    int m_itemsArgIndex = -1;
};

// ----------------------------------------------------------------- buttons

// actionText tells what a click does to the dialog the button is in:
// "reject" rejects it; empty on an ok button (named okButton, okButton1,
// okButton2 or okbutton) accepts it, unless the dialog connected clicked()
// itself to check first; any other button only emits clicked(). OkButton
// accepts in the same way (a dialog that connected it checks first), and
// CancelButton always rejects.
class VT_WIDGETS_API PushButton : public QPushButton, public VT_FunctionDef {
    Q_OBJECT
    Q_PROPERTY(int argIndex READ argIndex WRITE setArgIndex)
    Q_PROPERTY(int inElementIndex READ inElementIndex WRITE setInElementIndex)
    Q_PROPERTY(int outElementIndex READ outElementIndex WRITE setOutElementIndex)
    Q_PROPERTY(QString actionText READ actionText WRITE setActionText)

public:
    explicit PushButton(QWidget* parent = nullptr, const char* name = nullptr);
    ~PushButton() override;

    QString actionText() const { return m_actionText; }
    void setActionText(const QString& text) { m_actionText = text; }

protected:
    enum class Ending { ByActionText, Accept, Reject };
    PushButton(QWidget* parent, const char* name, Ending ending);
    void showEvent(QShowEvent* event) override;

private:
    void endDialog();
    bool acceptsDialog() const;

    QString m_actionText;
    Ending m_ending = Ending::ByActionText;
};

class VT_WIDGETS_API OkButton : public PushButton {
    Q_OBJECT

public:
    explicit OkButton(QWidget* parent = nullptr, const char* name = nullptr);
    ~OkButton() override;
};

class VT_WIDGETS_API CancelButton : public PushButton {
    Q_OBJECT

public:
    explicit CancelButton(QWidget* parent = nullptr, const char* name = nullptr);
    ~CancelButton() override;
};

// ----------------------------------------------------------------- Plotter

// One axis of a Plotter: its limits and how it is drawn,
//   Axis(low, high, precision, minorTicks, logarithmic, flags)
// - precision: significant digits of the tick labels, 1 to 15; 0 takes 3.
//   Labels carry engineering suffixes (f p n u m k M G T): 1000 reads "1k".
// - minorTicks: unlabelled ticks between two labelled ones. On a linear axis
//   that many, evenly spaced (at most 20). On a logarithmic axis they stand
//   at multiples of the decade: 1 gives 5; 2 or 3 give 2 and 5; 4 to 7 give
//   2, 4, 6 and 8; 8 or more give 2 to 9.
// - logarithmic: non-zero for a log10 axis, labelled at whole decades (every
//   second or fifth decade when they would crowd).
// - flags: bit 0 hides the grid lines, bit 1 the tick labels.
// A linear axis is labelled every 1, 2 or 5 times a power of ten, as many
// as fit. Limits are made drawable: swapped when in the wrong order, spread
// around a single value, 0 to 1 when not finite; a logarithmic axis whose
// limits aren't both positive starts three decades below its high limit,
// and is drawn linear when even the high limit isn't positive.
// Bode-style calls: Axis(10, 10000, 2, 4, 1, 0) is a log frequency axis
// with labels 10, 100, 1k, 10k; Axis(-60, 20, 3, 0, 0, 0) a linear axis
// labelled every 20.
class VT_WIDGETS_API Axis {
public:
    enum Flag : unsigned { NoGrid = 1u, NoLabels = 2u };

    Axis() = default;
    Axis(double low, double high, unsigned precision, unsigned minorTicks, unsigned logarithmic,
         unsigned flags);
    void setAxisParams(double low, double high, unsigned precision, unsigned minorTicks,
                       unsigned logarithmic, unsigned flags);

    double low() const { return m_low; }
    double high() const { return m_high; }
    unsigned precision() const { return m_precision; }
    unsigned minorTicks() const { return m_minorTicks; }
    bool isLogarithmic() const { return m_logarithmic; }
    unsigned flags() const { return m_flags; }

    // Tick positions between low and high, ascending, for an axis drawn
    // over length pixels with labels at least spacing pixels apart: the
    // labelled ones, and the minor ones between them.
    std::vector<double> majorTicks(double length, double spacing) const;
    std::vector<double> minorTickValues(double length, double spacing) const;
    // A tick label: v with an engineering suffix, to precision digits.
    QString label(double v) const;

private:
    double m_low = 0.0;
    double m_high = 1.0;
    unsigned m_precision = 0;
    unsigned m_minorTicks = 0;
    unsigned m_flags = 0;
    bool m_logarithmic = false;
};

// A marker line across the plot at one position of one axis:
//   CursorLine(vertical, position, label, visible, movable, pen)
// A vertical cursor stands at an x value, a horizontal one at a y value.
// The label is drawn at the line's end (top or right); a movable cursor can
// be dragged with the mouse. CursorLine() is an invisible vertical cursor.
class VT_WIDGETS_API CursorLine {
public:
    CursorLine() = default;
    CursorLine(bool vertical, double position, QString label, bool visible, bool movable,
               QPen pen);
    // Keeps visible and movable.
    void setCursorLine(bool vertical, double position, QString label, QPen pen);

    bool isVertical() const { return m_vertical; }
    double position() const { return m_position; }
    void setPosition(double position) { m_position = position; }
    const QString& label() const { return m_label; }
    bool isVisible() const { return m_visible; }
    bool isMovable() const { return m_movable; }
    const QPen& pen() const { return m_pen; }

private:
    QString m_label;
    QPen m_pen = QPen(QColor(200, 0, 0), 1.0, Qt::DashLine);
    double m_position = 0.0;
    bool m_vertical = true;
    bool m_visible = false;
    bool m_movable = false;
};

// A graph of curves over an x and a y Axis, with a grid, tick labels and
// cursor lines. Curve data is flat: x0, y0, x1, y1, ... (an odd last value
// is ignored); a point with a value that isn't finite is left out and
// breaks the line. Curves and cursors are numbered by the caller (0 to
// 63); setting one replaces it.
//
// A long curve (more than two points per pixel column) is drawn at pixel
// resolution: each point goes to the centre
// of the pixel it falls in, and the points that fall in one pixel column
// are reduced to the first, the lowest, the highest and the last, which
// covers exactly the pixels that every point would. Painting costs one
// pass over the points and memory in proportion to the width.
//
// The user zooms with the wheel about the mouse (Shift: x only, Ctrl: y
// only), pans by dragging or with the arrow keys, zooms with + and -, and
// goes back to the axes as given with Home, R or a double click (Escape
// stays the dialog's).
// A movable cursor is dragged along its axis and reports cursorMoved.
// margins are free pixels around the graph, beyond the room the labels
// take: setMargins(left, top, right, bottom).
class VT_WIDGETS_API Plotter : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool antialiasing READ antialiasing WRITE setAntialiasing)
    Q_PROPERTY(bool decimation READ decimation WRITE setDecimation)

public:
    static constexpr int kMaxCurves = 64;

    explicit Plotter(QWidget* parent = nullptr, const char* name = nullptr);
    ~Plotter() override;

    void initializeAxes(const Axis& x, const Axis& y);
    void setMargins(unsigned left, unsigned top, unsigned right, unsigned bottom);
    void setCurveData(int curve, const std::vector<double>& data, const QPen& pen);
    void setCursorData(int cursor, const CursorLine& line);
    void clearCurve(int curve);
    void clearCurveAll();
    void clearCursorAll();

    // The axes as shown now, after zooming and panning.
    const Axis& xAxis() const { return m_viewX; }
    const Axis& yAxis() const { return m_viewY; }
    int curveCount() const; // curves that hold data
    // Where a cursor is now (after dragging); NaN for one that isn't set.
    double cursorPosition(int cursor) const;
    // The rectangle of the graph inside the widget.
    QRect plotArea() const;
    // Pixel coordinates of a point, or of one axis value; NaN where the
    // axis can't show it (a log axis and a value <= 0).
    QPointF mapToPixel(double x, double y) const;

    // Curves antialiased (on by default). Off, a 1 pixel pen gives the exact
    // pixels of the points, which tests and print-outs may want.
    bool antialiasing() const { return m_antialiasing; }
    void setAntialiasing(bool on);
    // Column reduction of long curves (on by default); off draws every point
    // of every curve at its pixel, to compare with.
    bool decimation() const { return m_decimation; }
    void setDecimation(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void cursorMoved(int cursor, double position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Curve {
        std::vector<double> data;
        QPen pen;
        bool sortedX = false; // x ascending and never NaN
        // Of sorted data, per block of points: the lowest and the highest
        // y, both NaN where a y isn't finite; so a column of many points is
        // reduced by reading its summaries rather than its points.
        std::vector<double> blocks;
    };
    struct Drag;

    void resetView();
    void zoom(double factorX, double factorY, QPointF centre);
    void pan(double dxPixels, double dyPixels);
    int cursorAt(QPointF pos) const;
    void drawGrid(QPainter& p, const QRect& area) const;
    void drawCurve(QPainter& p, const QRect& area, const Curve& curve) const;
    void drawCursors(QPainter& p, const QRect& area) const;

    Axis m_givenX;
    Axis m_givenY;
    Axis m_viewX;
    Axis m_viewY;
    std::vector<Curve> m_curves;
    std::vector<CursorLine> m_cursors;
    QMargins m_margins;
    std::unique_ptr<Drag> m_drag;
    bool m_antialiasing = true;
    bool m_decimation = true;
};
