// libFuzzer target: the dialog designer's XML reader on arbitrary bytes.
// Reading must end, make at most the capped number of items, and leave
// nothing behind; what it read must write back as well-formed XML that reads
// again to the same items.
#include "designeritems.h"
#include "designerxml.h"

#include <QString>
#include <QXmlStreamWriter>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QList<DialogItem*> items = designer::readXml(text, nullptr);
    if (items.size() > designer::kMaxReadItems)
        std::abort();

    // Written flat, as the designer would write a tree of these items, and
    // read again: the same items in the same order.
    QString written;
    QXmlStreamWriter writer(&written);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Dialog"));
    for (DialogItem* item : items)
        item->writeXml(writer);
    writer.writeEndElement();
    writer.writeEndDocument();
    const QList<DialogItem*> again = designer::readXml(written, nullptr);
    // Characters XML can't carry are dropped by the writer, so only the
    // number of items must agree.
    if (again.size() != items.size())
        std::abort();
    qDeleteAll(again);
    qDeleteAll(items);
    return 0;
}
