// SPDX-License-Identifier: Apache-2.0
// Whether what the pages say has room, in every language and on every screen.
#include "headunit.h"
#include "languages.h"
#include "models/samples.h"
#include "pagetest.h"
#include "virtualtime.h"

#include <mfocusbutton.h>
#include <monoffbutton.h>
#include <mpresetbutton.h>
#include <mselectbutton.h>
#include <mvscrolllabel.h>
#include <sphomeicon.h>
#include <sphorstrbutton.h>
#include <spiconbutton.h>
#include <splockbutton.h>

#include <QLabel>
#include <QStackedWidget>

#include <memory>

using namespace headunit;

namespace
{

// All of a head unit, with what its samples hold.
struct Car : PageWorld {
    Car(const QSize &size, const QString &code) : languages(&preferences)
    {
        preferences.useLanguage(code);
        preferences.setOn(Preferences::Option::DateShown, true);
        preferences.setOn(Preferences::Option::Clock24, false);
        stations.load(samples::stationsFile());
        contacts.load(samples::contactsFile());
        unit = std::make_unique<HeadUnit>(context, size, Theme::Day);
        WidgetTest::show(*unit);
    }

    Languages languages;
    std::unique_ptr<HeadUnit> unit;
};

QString nameOf(const QWidget &widget)
{
    return QStringLiteral("%1 %2 of %3")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(),
             QLatin1String(widget.parentWidget()->metaObject()->className()));
}

// What a text lacks of the room that it has.
QString complaint(const QWidget &widget, const QString &text, const QFont &font, int room)
{
    const int width = QFontMetrics(font).horizontalAdvance(text);
    return width <= room ? QString()
                         : QStringLiteral("%1: \"%2\" is %3 wide and has %4")
                               .arg(nameOf(widget), text)
                               .arg(width)
                               .arg(room);
}

// Rich text and texts that roll have their own ways.
QString complaintOf(const QLabel &label)
{
    if (qobject_cast<const MVScrollLabel *>(&label) || label.text().contains(QLatin1Char('<')))
        return {};
    if (label.text().isEmpty())
        return {};
    if (label.wordWrap()) {
        const int height = label.heightForWidth(label.width());
        return height <= label.height() ? QString()
                                        : QStringLiteral("%1: \"%2\" is %3 high and has %4")
                                              .arg(nameOf(label), label.text())
                                              .arg(height)
                                              .arg(label.height());
    }
    if (QFontMetrics(label.font()).height() > label.height())
        return nameOf(label) + QStringLiteral(" is too low");
    return complaint(label, label.text(), label.font(), label.contentsRect().width());
}

QFont withSize(QFont font, int px)
{
    font.setPixelSize(px);
    return font;
}

QStringList textComplaints(const QWidget &widget)
{
    QStringList all;
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        all << complaintOf(*label);
    else if (const auto *key = qobject_cast<const SpIconButton *>(&widget))
        all << complaint(widget, key->displayText(), key->font(), key->width());
    else if (const auto *choice = qobject_cast<const MFocusButton *>(&widget))
        all << complaint(widget, choice->displayText(), choice->font(), choice->width());
    else if (const auto *preset = qobject_cast<const MPresetButton *>(&widget))
        all << complaint(widget, preset->displayText(), preset->font(), preset->width())
            << complaint(widget, preset->displayText2(), preset->font(), preset->width());
    else if (const auto *wide = qobject_cast<const SpHorStrButton *>(&widget))
        all << complaint(widget, wide->displayString(), wide->font(), wide->width());
    else if (const auto *tile = qobject_cast<const SpHomeIcon *>(&widget))
        all << complaint(widget, tile->iconText(), withSize(qApp->font(), tile->fontSize()),
                         tile->width());
    all.removeAll(QString());
    return all;
}

bool isTouched(const QWidget &widget)
{
    return qobject_cast<const SpIconButton *>(&widget)
        || qobject_cast<const MFocusButton *>(&widget)
        || qobject_cast<const MPresetButton *>(&widget)
        || qobject_cast<const MSelectButton *>(&widget)
        || qobject_cast<const SpHorStrButton *>(&widget)
        || qobject_cast<const SpLockButton *>(&widget) || qobject_cast<const SpHomeIcon *>(&widget)
        || qobject_cast<const MOnOffButton *>(&widget);
}

// Of what is seen at the moment.
QStringList complaintsAbout(const HeadUnit &unit, int touch)
{
    QStringList all;
    const auto widgets = unit.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        all += textComplaints(*widget);
        if (isTouched(*widget) && std::min(widget->width(), widget->height()) < touch)
            all += QStringLiteral("%1 is %2 x %3 and has to be %4")
                       .arg(nameOf(*widget))
                       .arg(widget->width())
                       .arg(widget->height())
                       .arg(touch);
    }
    return all;
}

// px from the highest to the lowest pixel that a label paints.
int inkHeight(QLabel &label)
{
    QImage picture(label.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    label.render(&picture, {}, {}, {});
    int first = picture.height();
    int last = -1;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(), [](QRgb color) { return qAlpha(color) > 0; })) {
            first = std::min(first, y);
            last = y;
        }
    }
    return last - first + 1;
}

QStringList cutMarks(const HeadUnit &unit)
{
    QStringList all;
    const auto labels = unit.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!label->isVisible() || !label->text().isRightToLeft())
            continue;
        QLabel copy(QStringLiteral("أ"));
        copy.setFont(label->font());
        copy.resize(200, 200);
        QLabel same(copy.text());
        same.setFont(label->font());
        same.setAlignment(label->alignment());
        same.setContentsMargins(label->contentsMargins());
        same.resize(label->width(), label->height());
        if (inkHeight(same) != inkHeight(copy))
            all += nameOf(*label);
    }
    return all;
}

// What is wrong with any view of any page.
template <typename Look> QStringList ofEveryView(const Car &car, Look look)
{
    QStringList all;
    const auto names = car.unit->pageNames();
    for (const QString &name : names) {
        car.unit->openPage(name);
        auto *views = car.unit->page(name)->findChild<QStackedWidget *>(QStringLiteral("views"));
        for (int view = 0; view < (views ? views->count() : 1); ++view) {
            if (views)
                views->setCurrentIndex(view);
            virtualtime::advance(0);
            all += look(*car.unit);
        }
    }
    all.removeDuplicates();
    return all;
}

} // namespace

class FitTest : public WidgetTest
{
    Q_OBJECT

private slots:
    void everythingHasRoom_data();
    void everythingHasRoom();
    void marksAboveLettersHaveRoom_data();
    void marksAboveLettersHaveRoom();
    void popupHasRoom_data();
    void popupHasRoom();
};

void FitTest::everythingHasRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("code");
    for (const QSize &size :
         {QSize(800, 480), QSize(1024, 600), QSize(1280, 720), QSize(1920, 720)}) {
        for (const QString &code : Languages::codes())
            QTest::addRow("%dx%d %s", size.width(), size.height(), qPrintable(code))
                << size << code;
    }
}

void FitTest::everythingHasRoom()
{
    QFETCH(QSize, size);
    QFETCH(QString, code);
    const Car car(size, code);
    const int touch = Theme(size, Theme::Day).touch();
    const QStringList all =
        ofEveryView(car, [touch](const HeadUnit &unit) { return complaintsAbout(unit, touch); });
    QVERIFY2(all.isEmpty(), qPrintable(all.join(QLatin1Char('\n'))));
}

void FitTest::marksAboveLettersHaveRoom_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(800, 480), QSize(1024, 600), QSize(1920, 720)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

// An alif with a hamza is as high in each label as in one with all the room that it wants.
void FitTest::marksAboveLettersHaveRoom()
{
    QFETCH(QSize, size);
    const Car car(size, QStringLiteral("ar"));
    const QStringList all = ofEveryView(car, cutMarks);
    QVERIFY2(all.isEmpty(), qPrintable(all.join(QLatin1Char('\n'))));
}

void FitTest::popupHasRoom_data() { everythingHasRoom_data(); }

// With the longest sentence that a model says about an ordinary file.
void FitTest::popupHasRoom()
{
    QFETCH(QSize, size);
    QFETCH(QString, code);
    const Car car(size, code);
    const QString path = QStringLiteral("/home/driver/telephone/contacts.vcf");
    const QString sentence =
        QCoreApplication::translate(
            "headunit::Contacts",
            "Cards of %1 that make no sense and are left out: %2. The first is in line %3.")
            .arg(path)
            .arg(1234)
            .arg(5678);
    car.unit->say(QStringLiteral("PanelKit"), sentence);
    virtualtime::advance(0);
    const QStringList all = complaintsAbout(*car.unit, Theme(size, Theme::Day).touch());
    QVERIFY2(all.isEmpty(), qPrintable(all.join(QLatin1Char('\n'))));
}

WIDGET_TEST_MAIN(FitTest)
#include "tst_fit.moc"
