#include "designerxml.h"

#include "designeritems.h"
#include "hostsupport.h"

#include <QTreeWidget>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

QString designer::writeXml(const QTreeWidget* tree)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(false);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Dialog"));
    for (int i = 0; tree && i < tree->topLevelItemCount(); ++i)
        if (auto* item = dynamic_cast<DialogItem*>(tree->topLevelItem(i)))
            item->writeXml(writer);
    writer.writeEndElement();
    writer.writeEndDocument();
    return text;
}

QList<DialogItem*> designer::readXml(const QString& text, DialogDesigner* owner)
{
    QList<DialogItem*> items;
    QXmlStreamReader reader(text);
    while (!reader.atEnd() && items.size() < kMaxReadItems) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = reader.name().toString();
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString title = attributes.value(QLatin1String("title")).toString();
        if (equals(name, QStringLiteral("SpinBox")))
            items << new SpinBoxItem(title, attributes.value(QLatin1String("unit")).toString(),
                                     owner);
        else if (equals(name, QStringLiteral("RadioButton")))
            items << new RadioButtonItem(title, owner);
        else if (equals(name, QStringLiteral("CheckBox")))
            items << new CheckBoxItem(title, owner);
        else if (equals(name, QStringLiteral("Group")))
            items << new GroupItem(title, owner);
        else if (equals(name, QStringLiteral("Tab")))
            items << new TabItem(title, owner);
    }
    // A broken document keeps what was read before the fault; the user
    // sees the sketch as far as it went.
    (void)reader.hasError();
    return items;
}
