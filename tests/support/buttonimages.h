// SPDX-License-Identifier: Apache-2.0
#ifndef BUTTONIMAGES_H
#define BUTTONIMAGES_H

#include "pictures.h"
#include "tablerows.h"
#include "widgettest.h"

#include <QAbstractButton>

#include <functional>
#include <initializer_list>

/// Rows of a picture's "size", larger and smaller than its room, in one of two looks: that of a
/// press or, if not "pressed", this other one.
inline void addStretchedPictures(const char *otherLook)
{
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(131, 77), QSize(7, 3)}) {
        QTest::addRow("press %d", size.width()) << true << size;
        QTest::addRow("%s %d", otherLook, size.width()) << false << size;
    }
}

/// A widget paints nothing but this picture, stretched to a rectangle, also when it paints again.
inline void checkPaintsStretched(QWidget &widget, const QPixmap &picture, const QRect &rect)
{
    const QImage expected = reference(widget, [&](QPainter &p) { p.drawPixmap(rect, picture); });
    COMPARE_PICTURES(painted(widget), expected);
    COMPARE_PICTURES(painted(widget), expected);
}

/// Rows of a button's "size" and of where a picture of 40 x 30 stands in it, "topLeft", whose
/// fractions are cut off.
inline void addPlacesTowardZero()
{
    const TableRows<QSize, QPoint> row("size", "topLeft");
    row("even", {100, 80}, {30, 25});
    row("odd", {101, 81}, {30, 25});
    row("smaller", {35, 25}, {-2, -2});
}

/// A button of the row's "size" has its normal image at "topLeft".
template <typename Button> void checkImageStandsAtTopLeft()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, topLeft);
    const QPixmap image = picture(Qt::green);
    Button button;
    button.setNormalImage(image);
    button.setMinimumSize(0, 0);
    button.resize(size);
    COMPARE_PICTURES(painted(button),
                     reference(button, [&](QPainter &p) { p.drawPixmap(topLeft, image); }));
}

/// Only the normal image sets a button's minimum size, which stays when the image goes; the other
/// properties named here have images too.
template <typename Button>
void checkOnlyTheNormalImageSetsTheMinimumSize(std::initializer_list<const char *> others)
{
    Button button;
    QSize size(170, 144);
    for (const char *name : others) {
        QVERIFY2(button.setProperty(name, picture(Qt::red, size)), name);
        size += QSize(1, 1);
    }
    QCOMPARE(button.minimumSize(), QSize(0, 0));
    button.setNormalImage(picture(Qt::green, {70, 44}));
    QCOMPARE(button.minimumSize(), QSize(70, 44));
    button.setNormalImage(QPixmap());
    QVERIFY(button.normalImage().isNull());
    QCOMPARE(button.minimumSize(), QSize(70, 44));
}

/// Without a normal image, buttons of this making look like Qt's, also if they are checked.
template <typename QtButton, typename Make> void checkIsPlainWithoutNormalImage(const Make &make)
{
    for (bool checked : {false, true}) {
        const auto button = make();
        QtButton plain;
        for (QAbstractButton *each : {static_cast<QAbstractButton *>(button.get()),
                                      static_cast<QAbstractButton *>(&plain)}) {
            each->setText(QStringLiteral("Radio"));
            each->setChecked(checked);
        }
        button->setNormalImage(QPixmap());
        plain.resize(button->size());
        COMPARE_PICTURES(painted(*button), painted(plain));
    }
}

/// Rows of a "state" of a button that can be checked and of the look that is "expected" then. The
/// looks: normal, pressed with and without an image for it, disabled with and without one.
template <typename Button, typename Look>
void addLooksOfCheckable(const TableRows<std::function<void(Button &)>, Look> &row,
                         const Look &normal, const Look &pressed, const Look &pressedWithoutImage,
                         const Look &disabled, const Look &disabledWithoutImage)
{
    const auto checkAndDisable = [](auto &b) {
        b.setChecked(true);
        b.setEnabled(false);
    };
    row(
        "normal", [](auto &) {}, normal);
    row(
        "down", [](auto &b) { b.setDown(true); }, pressed);
    row(
        "checked", [](auto &b) { b.setChecked(true); }, pressed);
    row(
        "disabled", [](auto &b) { b.setEnabled(false); }, disabled);
    row("disabled and checked", checkAndDisable, disabled);
    row(
        "down without press image",
        [](auto &b) {
            b.setDown(true);
            b.setPressImage(QPixmap());
        },
        pressedWithoutImage);
    row(
        "disabled and checked without disable image",
        [=](auto &b) {
            b.setDisableImage(QPixmap());
            checkAndDisable(b);
        },
        disabledWithoutImage);
}

#endif // BUTTONIMAGES_H
