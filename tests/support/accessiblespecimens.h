// SPDX-License-Identifier: Apache-2.0
#ifndef ACCESSIBLESPECIMENS_H
#define ACCESSIBLESPECIMENS_H

#include "panelkitclasses.h"
#include "pictures.h"
#include "sliderpictures.h"

#include <QAccessible>
#include <QStandardItemModel>
#include <QTemporaryDir>

#include <functional>
#include <vector>

constexpr QSize kSpecimenSize(240, 120); // px, of those that have none of their own

/// A widget of each class, ready to be touched, and what a client of accessibility finds there.
/// Each is called "id", and "Caption" stands on it where anything can.
struct Specimen {
    const char *name;
    QAccessible::Role role;
    const char *text; ///< the name of it
    const char *actions;
    const char *value; ///< the present, lowest and highest one and the step; empty: it has none
    std::function<QWidget *(QWidget *)> make;
};

/// Two green pictures, one after the other, in files that live as long as the program.
inline QStringList pictureFiles()
{
    static const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("picture.png"));
    static const bool isSaved = filled(Qt::green, {60, 40}).save(file);
    return isSaved ? QStringList{file, file} : QStringList();
}

/// A model with so many rows of a number, a text and a tail: "1", "Row 1", "tail".
inline QStandardItemModel *rowsModel(int count, QObject *parent)
{
    auto *model = new QStandardItemModel(count, 1, parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model->index(row, 0);
        model->setData(index, 0xF0F0F0, 258);
        model->setData(index, QString::number(row + 1), 261);
        model->setData(index, QStringLiteral("Row %1").arg(row + 1), 262);
        model->setData(index, QStringLiteral("tail"), 263);
        model->setData(index, row == 1, 266);
    }
    return model;
}

template <typename Class> std::function<QWidget *(QWidget *)> made()
{
    return [](QWidget *parent) { return new Class(parent); };
}

template <typename Class, typename Prepare>
std::function<QWidget *(QWidget *)> made(Prepare prepare)
{
    return [prepare](QWidget *parent) {
        auto *widget = new Class(parent);
        prepare(*widget);
        return widget;
    };
}

/// With a text as this property.
template <typename Class> std::function<QWidget *(QWidget *)> captioned(const char *property)
{
    return made<Class>([property](Class &w) { w.setProperty(property, "Caption"); });
}

inline std::vector<Specimen> buttonSpecimens()
{
    using A = QAccessible;
    const auto states = [](QWidget *parent) {
        const QStringList files = pictureFiles();
        return new MultipleStateButton(0, 0, 1, files, files, QString(), parent);
    };
    const auto play = [](QWidget *parent) {
        return new PlayButton(0, 0, 1, pictureFiles().at(0), pictureFiles().at(1), parent);
    };
    const QList<QPixmap> three{picture(Qt::red), picture(Qt::green), picture(Qt::blue)};
    return {
        {"SpIconButton", A::Button, "Caption", "Press/LongPress", "",
         made<SpIconButton>([](SpIconButton &b) {
             b.setDisplayText("Caption");
             b.setSupportLongPress(true);
         })},
        {"SpHorStrButton", A::Button, "Caption", "Press", "",
         captioned<SpHorStrButton>("displayString")},
        {"SpVerStrButton", A::Button, "Caption", "Press", "",
         captioned<SpVerStrButton>("displayString")},
        {"SpDisLabel", A::Button, "Caption", "Press", "", captioned<SpDisLabel>("text")},
        {"MOnOffButton", A::CheckBox, "id", "Toggle/Press", "", made<MOnOffButton>()},
        {"MFocusButton", A::RadioButton, "Caption", "Toggle/Press/LongPress/SetFocus", "",
         captioned<MFocusButton>("displayText")},
        {"MPresetButton", A::Button, "Caption below", "Press/LongPress/SetFocus", "",
         made<MPresetButton>([](MPresetButton &b) {
             b.setDisplayText("Caption");
             b.setDisplayText2("below");
         })},
        {"MSelectButton", A::Button, "Caption", "Press/LongPress", "",
         captioned<MSelectButton>("displayText")},
        {"SpMultipleButton", A::Button, "id", "Press", "0 0 2 1",
         made<SpMultipleButton>([three](SpMultipleButton &b) { b.setPixmapList(three, three); })},
        {"MultipleStateButton", A::Button, "id", "Press", "0 0 1 1", states},
        {"PlayButton", A::Button, "id", "Press", "", play},
        {"SpLockButton", A::Button, "Caption", "Toggle/Press", "",
         captioned<SpLockButton>("displayText")},
        {"SpHomeIcon", A::Button, "Caption", "Press", "", captioned<SpHomeIcon>("iconText")},
        {"SpMaskBackground", A::LayeredPane, "id", "Press", "", made<SpMaskBackground>()},
        {"SpBackgroundImage", A::Graphic, "id", "Press", "",
         made<SpBackgroundImage>([](SpBackgroundImage &w) { w.setholdMouseEvent(true); })},
        {"MGifPlay", A::Animation, "id", "Press", "", made<MGifPlay>()},
        {"SpLabel", A::Graphic, "id", "", "", made<SpLabel>()},
        {"MListView", A::Grouping, "id", "", "",
         [](QWidget *parent) { return new MListView(parent, QRect(0, 0, 100, 100)); }},
        {"SpRollingText", A::StaticText, "Caption", "", "", captioned<SpRollingText>("text")},
        {"MVScrollLabel", A::StaticText, "Caption", "", "", captioned<MVScrollLabel>("text")},
        {"MOProgress", A::ProgressBar, "Caption", "Press", "50 0 100 1",
         captioned<MOProgress>("dispalyText")},
        {"SpLoadingRound", A::Animation, "id", "Press", "", made<SpLoadingRound>()},
    };
}

/// Those with values that a finger sets, and the lists.
inline std::vector<Specimen> sliderSpecimens()
{
    using A = QAccessible;
    const char *const steps = "Increase/Decrease";
    const auto arc = [](MArcScrollBar &w) {
        w.setRadius(0);
        w.resize(40, 300);
        w.setValue(9);
    };
    const auto tuner = [](MRadioMovePoint &w) {
        w.setFreqStart(8750);
        w.setLineStart(20);
        w.setLineEnd(800);
        w.setPixCountMeta(1);
        w.setTotalCountMeta(100);
        w.setInitByCustomeValue(true);
        w.curFreqChangedSlot(9800);
    };
    const auto band = [](MKARVOSlider &w) {
        w.resize(800, 120);
        w.setRealMinFreq(522);
        w.setRealMaxFreq(1620);
        w.setCurFreq(999);
    };
    return {
        {"SpSetupSlider", A::Slider, "id", steps, "0 -5 5 1",
         made<SpSetupSlider>([](SpSetupSlider &w) { SliderPictures(Qt::Vertical).giveTo(w); })},
        {"SpSetupSliderContainer", A::Grouping, "id", "Previous Page/Next Page", "",
         made<SpSetupSliderContainer>()},
        {"MHorSlider", A::Slider, "id", steps, "0 -5 5 1",
         made<MHorSlider>([](MHorSlider &w) { SliderPictures(Qt::Horizontal).giveTo(w); })},
        {"MCircularDial", A::Dial, "id", steps, "98 87.5 108 0.1",
         made<MCircularDial>([](MCircularDial &w) {
             w.setRadius(140);
             w.setValue(98);
             w.resize(300, 300);
         })},
        {"MProgressBar", A::Slider, "id", steps, "50 0 100 1", made<MProgressBar>()},
        {"MArcScrollBar", A::ScrollBar, "id", steps, "9 0 99 1", made<MArcScrollBar>(arc)},
        {"MRadioMovePoint", A::Slider, "id", steps, "9800 8750 10800 10",
         made<MRadioMovePoint>(tuner)},
        {"MRadioSlider", A::Slider, "id", steps, "98.5 87.5 108 0.1",
         made<MRadioSlider>([](MRadioSlider &w) {
             w.resize(600, 100);
             w.initSliderRange();
             w.setCurFreq(98.5F);
         })},
        {"MKARVOSlider", A::Slider, "id", steps, "999 522 1620 9", made<MKARVOSlider>(band)},
        {"SpTableList", A::List, "id", "SetFocus", "", made<SpTableList>([](SpTableList &w) {
             w.setItemHeight(40);
             w.setItemWidth(200);
             w.setModel(rowsModel(20, &w));
         })},
        {"MArcList", A::List, "id", "", "", made<MArcList>([](MArcList &w) {
             w.setAcrListStyle(MArcList::ARCLIST_STYLE_1);
             w.setItemHight(30);
             for (const QChar letter : QStringLiteral("ABCDEFGH"))
                 w.addAlpha(letter);
         })},
    };
}

inline std::vector<Specimen> allSpecimens()
{
    std::vector<Specimen> all = buttonSpecimens();
    for (const Specimen &each : sliderSpecimens())
        all.push_back(each);
    return all;
}

/// The widget in a window that is shown.
inline QWidget *shown(const Specimen &specimen, QWidget &window)
{
    QWidget *widget = specimen.make(&window);
    widget->setObjectName(QStringLiteral("id"));
    if (!widget->testAttribute(Qt::WA_Resized))
        widget->resize(kSpecimenSize);
    window.resize(1000, 700);
    window.show();
    return widget;
}

Q_DECLARE_METATYPE(const Specimen *)

#endif // ACCESSIBLESPECIMENS_H
