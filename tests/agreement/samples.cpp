// SPDX-License-Identifier: Apache-2.0
#include "samples.h"

#include "panelkitclasses.h"

#include "pictures.h"

#include <QPixmap>
#include <QStandardItemModel>
#include <QWidget>

namespace
{

// The pictures that a finger moves, or that follow it.
bool isMark(const QByteArray &property)
{
    static const QByteArrayList marks{"pointPix",         "pointPixmap",      "indicatePix",
                                      "pointNormalImage", "pointPressImage",  "normalChunkPix",
                                      "pressChunkPix",    "pointDisableImage"};
    return marks.contains(property);
}

QPixmap pictureFor(const QByteArray &property)
{
    if (isMark(property)) {
        QPixmap mark(12, 20);
        mark.fill(kMarkColor);
        return mark;
    }
    const bool isGroove = property.startsWith("slider");
    return filled(isGroove ? Qt::gray : QColor(40, 120, 200),
                  isGroove ? QSize(200, 20) : QSize(60, 40));
}

void givePictures(QWidget &widget)
{
    const QMetaObject *type = widget.metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        if (property.userType() == QMetaType::QPixmap)
            property.write(&widget, pictureFor(property.name()));
    }
}

void giveInitialValues(QWidget &widget, const char *initial)
{
    const QStringList lines =
        QString::fromUtf8(initial).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const int equals = line.indexOf(QLatin1Char('='));
        widget.setProperty(line.left(equals).toLatin1().constData(), line.mid(equals + 1));
    }
}

constexpr int kRows = 40;
constexpr int kFirstRole = 258; // the flags, then what the rows show
constexpr int kShownParts = 0x00F0F0F0; // number, centre text and tail text

void giveRows(SpTableList &list)
{
    auto *model = new QStandardItemModel(kRows, 1, &list);
    for (int row = 0; row < kRows; ++row) {
        const QModelIndex index = model->index(row, 0);
        model->setData(index, kShownParts, kFirstRole);
        for (int role = kFirstRole + 1; role <= kFirstRole + 10; ++role)
            model->setData(index, QStringLiteral("Row %1").arg(row), role);
    }
    list.setModel(model);
}

void giveContent(QWidget &widget)
{
    if (auto *list = qobject_cast<SpTableList *>(&widget))
        giveRows(*list);
    if (auto *letters = qobject_cast<MArcList *>(&widget)) {
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            letters->addAlpha(QLatin1Char(letter));
    }
    if (auto *text = qobject_cast<SpRollingText *>(&widget))
        text->setText(QStringLiteral("A text that is too wide for most of the sizes it gets here"));
    if (auto *text = qobject_cast<MVScrollLabel *>(&widget))
        text->setText(QStringLiteral("Line\n").repeated(20));
    if (auto *bar = qobject_cast<MArcScrollBar *>(&widget))
        bar->setRange(0, 25);
}

} // namespace

QVector<Sample> samples()
{
    QVector<Sample> result;
#define SAMPLE_ROW(Class, create, header, family, tooltip, width, height, initial)                \
    result += {#Class, [](QWidget *parent) -> QWidget * { return create; }, QSize(width, height), \
               initial};
    PANELKIT_FOR_EACH_WIDGET(SAMPLE_ROW)
#undef SAMPLE_ROW
    return result;
}

std::unique_ptr<QWidget> made(const Sample &sample, const QSize &size)
{
    std::unique_ptr<QWidget> widget(sample.create(nullptr));
    givePictures(*widget);
    giveInitialValues(*widget, sample.initial);
    giveContent(*widget);
    widget->setMinimumSize(0, 0);
    widget->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    widget->resize(size);
    widget->ensurePolished();
    return widget;
}

bool takesMark(const QWidget &widget)
{
    const QMetaObject *type = widget.metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        if (isMark(type->property(i).name()))
            return true;
    }
    return false;
}

QVector<QMetaProperty> numberProperties(const QWidget &widget)
{
    QVector<QMetaProperty> result;
    const QMetaObject *type = widget.metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        const int kind = property.userType();
        if (!property.isEnumType()
            && (kind == QMetaType::Int || kind == QMetaType::Float || kind == QMetaType::Double))
            result += property;
    }
    return result;
}
