#include "parameterisedlevel.h"

#include "hostwidgets.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QPoint>

ParameterisedLevel::ParameterisedLevel(RadioGroup* levels, QGroupBox* valueGroup,
                                       EditBox* valueEdit, const Rules& rules, QObject* parent)
    : QObject(parent)
    , m_levels(levels)
    , m_valueGroup(valueGroup)
    , m_valueEdit(valueEdit)
    , m_rules(rules)
{
}

bool ParameterisedLevel::isExpression(const QString& text)
{
    return text.startsWith(QLatin1Char('{'));
}

void ParameterisedLevel::setParameterized(bool on)
{
    m_parameterized = on;
    if (m_valueGroup)
        m_valueGroup->setVisible(on);
    if (m_rules.lockRadios && m_levels) {
        const auto buttons = m_levels->findChildren<QRadioButton*>();
        for (QRadioButton* button : buttons)
            button->setEnabled(!on);
    }
}

void ParameterisedLevel::showLevel(int level)
{
    m_shownLevel = level;
    if (m_valueEdit && !isExpression(m_valueEdit->text()))
        m_valueEdit->setText(QString::number(level));
}

ParameterisedLevel::Choice ParameterisedLevel::popUpMenu(const QPoint& pos)
{
    if (!m_levels)
        return Choice::None;
    QMenu menu(m_levels);
    QAction* action =
        m_parameterized
            ? menu.addAction(QIcon(QStringLiteral(":/stop.png")), tr("Remove Parameterization"))
            : menu.addAction(QIcon(QStringLiteral(":/options.png")), tr("Parameterize Model Level"));
    if (menu.exec(m_levels->mapToGlobal(pos)) != action)
        return Choice::None;
    return m_parameterized ? Choice::Remove : Choice::Parameterize;
}

void ParameterisedLevel::contextMenu(const QPoint& pos)
{
    const Choice choice = popUpMenu(pos);
    if (choice == Choice::None)
        return;
    if (choice == Choice::Parameterize) {
        if (m_rules.topLevel >= 0) {
            if (m_valueEdit)
                m_valueEdit->setText(QString::number(m_rules.topLevel));
            if (m_levels)
                m_levels->setButton(m_rules.topLevel);
            emit levelSelected(m_rules.topLevel);
        }
        setParameterized(true);
        if (m_rules.focusEditor && m_valueEdit) {
            m_valueEdit->selectAll();
            m_valueEdit->setFocus();
        }
    } else {
        setParameterized(false);
        // An expression loaded at start checks no button; the level its
        // pages show stands in for it then.
        if (m_rules.resetOnRemove && m_valueEdit && m_levels) {
            const int selected = m_levels->selectedId();
            m_valueEdit->setText(QString::number(selected >= 0 ? selected : m_shownLevel));
        }
    }
    emit parameterizationChanged(m_parameterized);
}
