// The parameterised model level that several device editors share. The
// level isn't an argument of its own: an edit box, shown only while the
// level is parameterised, carries either the plain level number that the
// radio buttons select or an expression in braces that the user typed. A
// context menu on the level's radio group switches between the two states.
//
// What the two menu actions do beyond switching the flag and the edit
// box's group differs from editor to editor; Rules holds those differences.
#pragma once

#include <QObject>
#include <QString>

class EditBox;
class QGroupBox;
class QPoint;
class RadioGroup;

class ParameterisedLevel : public QObject {
    Q_OBJECT

public:
    struct Rules {
        // "Parameterize" first selects this level: the edit box gets it, its
        // radio button is checked, and levelSelected() is emitted. -1: the
        // level and the edit box's text stay as they are.
        int topLevel = -1;
        // The radio buttons are disabled while the level is parameterised,
        // so that the expression can't be mistaken for the selected level.
        bool lockRadios = false;
        // "Parameterize" selects the edit box's text and gives it the focus.
        bool focusEditor = false;
        // "Remove Parameterization" writes the selected level over the
        // edit box at once. Without it an expression stays in the result
        // until the user clears it.
        bool resetOnRemove = false;
    };

    enum class Choice { None, Parameterize, Remove };

    ParameterisedLevel(RadioGroup* levels, QGroupBox* valueGroup, EditBox* valueEdit,
                       const Rules& rules, QObject* parent);

    // A level text is an expression when it starts with "{".
    static bool isExpression(const QString& text);

    bool isParameterized() const { return m_parameterized; }
    // Sets the flag, shows or hides the edit box's group, and locks the
    // radio buttons as the rules say. No signal.
    void setParameterized(bool on);
    // What a radio button click writes: the level in decimal, unless an
    // expression stands in the edit box; an expression is never replaced
    // by a click.
    void showLevel(int level);

    // The menu alone, at pos of the radio group: which action was taken.
    Choice popUpMenu(const QPoint& pos);

public slots:
    // The menu and the chosen action, as the rules say.
    void contextMenu(const QPoint& pos);

signals:
    // "Parameterize" chose this level (Rules::topLevel).
    void levelSelected(int level);
    // After a menu action switched the state.
    void parameterizationChanged(bool parameterized);

private:
    RadioGroup* m_levels = nullptr;
    QGroupBox* m_valueGroup = nullptr;
    EditBox* m_valueEdit = nullptr;
    Rules m_rules;
    int m_shownLevel = 0;
    bool m_parameterized = false;
};
