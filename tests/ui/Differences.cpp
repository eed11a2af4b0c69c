// SPDX-License-Identifier: MIT
#include "ui/Differences.h"

#include "support/Text.h"

#include <QMetaProperty>
#include <QWidget>

namespace Panorel::Tests {

QStringList differences(const QObject& object, const QObject& plain)
{
    QStringList names;
    const QMetaObject* meta = plain.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.read(&object) != property.read(&plain))
            names.append(QString::fromLatin1(property.name()));
    }
    if (object.dynamicPropertyNames() != plain.dynamicPropertyNames())
        names.append("dynamic properties"_s);
    return names;
}

QStringList widgetDifferences(const QWidget& widget, const QWidget& plain)
{
    QStringList names = differences(widget, plain);
    if (widget.windowFlags() != plain.windowFlags())
        names.append("flags"_s);
    for (int i = 0; i < Qt::WA_AttributeCount; ++i) {
        if (widget.testAttribute(Qt::WidgetAttribute(i)) !=
            plain.testAttribute(Qt::WidgetAttribute(i)))
            names.append("attribute "_s + QString::number(i));
    }
    return names;
}

} // namespace Panorel::Tests
