// Small helpers the answer tests build their forms with.
#pragma once

#include "hostwidgets.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QStringList>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace answerforms {

template <class W>
W* bound(W* w, int arg, int in, int out)
{
    w->setArgIndex(arg);
    w->setInElementIndex(in);
    w->setOutElementIndex(out);
    return w;
}

template <class W>
W* bound(W* w, int arg, int in, int out, const QString& text)
{
    bound(w, arg, in, out)->setText(text);
    return w;
}

inline void addRadios(QGroupBox* box, int n)
{
    auto* layout = new QVBoxLayout(box);
    for (int i = 0; i < n; ++i)
        layout->addWidget(new QRadioButton(QStringLiteral("r%1").arg(i), box));
}

inline QStringList latin1(const std::vector<std::string>& strings)
{
    QStringList out;
    for (const std::string& s : strings)
        out << QString::fromLatin1(s.data(), static_cast<int>(s.size()));
    return out;
}

} // namespace answerforms
